#pragma once

#include "platform/FolderItem.h"
#include "primes/engine/PrimeFile.h"
#include "primes/engine/PrimeTable.h"

#include <cstdint>
#include <optional>

namespace tessarolyne {

// What the program knows of the content of the prime file that it is bound to. Not its place, which the
// application keeps as a setting.
struct BoundFile {
    // The content that was read, written, or shown to the user as what a save replaces.
    std::optional<FileStamp> seen;
    // It holds something, which the table doesn't stem from: reading it failed.
    bool isForeign = false;
};

// What a save would take away that nobody has seen.
enum class UnseenContent { None, MorePrimes, Other, Unreadable };

// Looks at the file at `item` before a save of `table`. One that isn't as `known` says is read, until it
// holds more primes than the table; that takes no more than `mostBytes` bytes. Tells `progress` of the Work
// alone.
UnseenContent LookBeforeSaving(const FolderItem& item, const BoundFile& known, const PrimeTable& table,
    std::uint64_t mostBytes, PrimeFileProgress& progress);

} // namespace tessarolyne

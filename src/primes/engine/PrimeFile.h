#pragma once

#include "platform/FolderItem.h"
#include "primes/engine/PrimeTable.h"

#include <cstddef>
#include <cstdint>
#include <exception>
#include <limits>
#include <optional>
#include <string_view>

// The text file that keeps a table of primes between runs. First a header, a label and " : " and the number
// of primes; then lines of numbers with a tab between them. Its worth is for the reader to decide.
namespace tessarolyne {

// Watches a prime file being read or written. The calls come on the same thread, a few hundred of them
// for a file of any size whose header is true; where it isn't, up to one for each number.
class PrimeFileProgress {
public:
    virtual ~PrimeFileProgress() = default;

    // How many numbers are expected. Once.
    virtual void Expect([[maybe_unused]] std::int64_t maximum) {}
    // The number with this index, from 0, was written or is about to be taken into the table.
    virtual void Reach([[maybe_unused]] std::int64_t index) {}
    // Some hundred kilobytes are done, whatever was in them.
    virtual void Work() {}
    // Asked after each Work of a reading: true ends it.
    virtual bool MustStop() { return false; }
};

// How many numbers stand between two calls of Reach: a five hundredth of the whole; 0 for a small whole.
std::int64_t ProgressStep(std::int64_t maximum);

// Writes the table, `perLine` numbers in each line, for which a minus counts nothing; all in one for 0.
// Reaches every number but the first whose index is a multiple of the step, for a step of 0 every one.
// Doesn't commit the file. Throws IOException.
void WritePrimeFile(const PrimeTable& table, std::string_view label, int perLine, OutputFile& file,
    PrimeFileProgress& progress);

// Expected of a file without a header.
inline constexpr std::int64_t headerlessMaximum = 200'000;

// No list of primes is larger: as many numbers as a table takes, each of 12 digits and a separator, and a
// header.
inline constexpr std::uint64_t largestPrimeFile = std::uint64_t{PrimeTable::maxSize} * 13 + 4096;

// What a file turned out to hold.
enum class PrimeFileContent {
    Primes,  // first of all 2, 3, 5, 7
    Nothing, // not a character but blanks, or a label and a number as the header
    Other
};

// PrimeFileProgress::MustStop ended a reading.
class ReadingStopped final : public std::exception {
public:
    const char* what() const noexcept override { return "the reading was stopped"; }
};

// Replaces the table by the numbers of the file. A line ends with CR, LF or CRLF; a byte order mark at the
// start is passed over. A first line that contains " : " is a header, whose count only tells what to expect.
// The number of a field is its Val, truncated and held within 64 bits; 0 drops the rest of the line. Reaches
// every index that is a multiple of the step, for a step of 0 only the first. Takes memory for one chunk
// beside the table. Throws IOException, also when the table takes no more numbers or has
// more than `mostBytes` bytes, or ReadingStopped; the table then holds what was read.
PrimeFileContent ReadPrimeFile(InputFile& file, PrimeTable& table, PrimeFileProgress& progress,
    std::uint64_t mostBytes = std::numeric_limits<std::uint64_t>::max(),
    std::size_t chunkSize = std::size_t{256} * 1024);

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

#pragma once

#include "primes/engine/PrimeTable.h"
#include "primes/engine/StrikeList.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tessarolyne {

// Finds the primes that follow those of a table, window by window, by striking out the multiples of the
// table's own entries. It keeps nothing that it finds: whoever asks appends it to the table, or compares it
// with what the table holds there. Windows stay in the first-level cache; primes that would meet a window
// only a few times strike a block of windows at once, in the second-level cache.
class BlockSieve {
public:
    // The table's known consecutive primes must reach at least this far.
    static constexpr std::uint64_t leastStart = 251;

    // Begins behind the last of the table's known consecutive primes. May throw std::bad_alloc.
    explicit BlockSieve(const PrimeTable& table);

    // Decides the numbers of the next window, none beyond `end`. What was handed out before must be in the
    // table and known by then.
    void DecideWindow(std::uint64_t end);

    // Half the gaps between the window's next primes, the first one counted from the prime handed out last;
    // valid until the next call. Empty when all of the window has been handed out. Right for gaps below 512:
    // the first wider one between primes begins at 304 599 508 537, and a table of 2^31 primes ends at
    // 50 685 770 143.
    std::span<const std::uint8_t> NextHalfGaps();

    // Every number up to this one has been decided.
    std::uint64_t Reached() const { return reached_; }

private:
    // The most bytes whose gaps are read at once: their primes stay in the first-level cache. No byte has all
    // its bits, since 7 divides one of the eight numbers.
    static constexpr std::size_t mostBytes = 2048;
    static constexpr std::size_t room = 7 * mostBytes + 16; // vectors write beyond the last one

    void BeginBlock(std::uint64_t end);
    std::size_t ReadPlaces(std::span<const std::uint8_t> bytes);

    const PrimeTable& table_;
    StrikeList windowStrikers_;
    StrikeList blockStrikers_;
    PrimeTable::Cursor nextStriker_;
    std::vector<std::uint8_t> block_;
    std::uint64_t blockByte_;       // the block's first byte in the map of all numbers
    std::uint32_t blockSize_ = 0;   // bytes of the block in use
    std::uint32_t windowStart_ = 0; // the next window's first byte in the block
    std::span<const std::uint8_t> unread_;
    std::uint64_t reached_;

    std::array<std::uint8_t, 1 + room> places_; // half the way from a fixed number to the primes, modulo 256
    std::array<std::uint8_t, room> halfGaps_;
    std::uint8_t lastPlace_; // of the last prime
    std::uint8_t start_ = 0; // the place of the next byte's residue 1
};

} // namespace tessarolyne

#pragma once

#include "primes/engine/PrimeTable.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// The bit map of the sieve: byte b stands for the numbers from 30 b to 30 b + 29, and its eight bits for
// those of them that 2, 3 and 5 don't divide.
namespace tessarolyne {

namespace Wheel30 {

// Bit k of byte b is the number 30 b + residues[k].
inline constexpr std::array<std::uint8_t, 8> residues = {1, 7, 11, 13, 17, 19, 23, 29};

// The bit of a number in its byte, 8 where 2, 3 or 5 divides it.
constexpr std::uint8_t BitOf(std::uint64_t number) {
    const auto* const place = std::find(residues.begin(), residues.end(), number % 30);
    return static_cast<std::uint8_t>(place - residues.begin());
}

// The bits of the numbers in the byte of `number` that are not above it.
constexpr std::uint8_t BitsUpTo(std::uint64_t number) {
    const auto* const above = std::upper_bound(residues.begin(), residues.end(), number % 30);
    return static_cast<std::uint8_t>((1U << (above - residues.begin())) - 1);
}

} // namespace Wheel30

// Primes that strike their multiples out of consecutive stretches of a wheel-30 bit map. Each
// prime remembers where it stands between two stretches. A stretch has at most 2^24 bytes.
class StrikeList {
public:
    // Adds a prime above 5 and below 2^22. Its first multiple to strike is the square, or the first one that
    // lies in or behind byte `startByte`, where the next stretch begins.
    void Add(std::uint64_t prime, std::uint64_t startByte);

    // Strikes the multiples in the next `size` bytes.
    void Strike(std::uint8_t* bytes, std::uint32_t size);

private:
    // A prime is 30 quotient + residue, and the list that it is in tells the residue.
    struct Striker {
        std::uint32_t quotient;
        std::uint32_t place; // 8 times the byte of the next multiple, plus the bit of its cofactor's residue
    };

    template <unsigned Class>
    static void StrikeClass(std::vector<Striker>& strikers, std::uint8_t* bytes, std::uint32_t size);

    std::array<std::vector<Striker>, 8> classes_;
};

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

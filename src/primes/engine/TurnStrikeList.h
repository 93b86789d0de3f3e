#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace tessarolyne {

// Primes that strike their multiples out of a block of a wheel-30 bit map (Wheel30.h) by whole turns of the
// wheel, eight products each: a turn that begins in the block is struck to its end, and struck again from the
// next block's side. So there is one branch a turn, and the block needs `largestPrime` bytes of room before
// and behind it. For primes that make several turns in a block; StrikeList is for the others.
class TurnStrikeList {
public:
    // The largest prime that may be added.
    static constexpr std::uint32_t largestPrime = 32768;

    // Adds a prime above 163 and up to largestPrime, whose square is not behind the block that begins with
    // byte `startByte`. Of the products below the square it may strike a few too.
    void Add(std::uint64_t prime, std::uint64_t startByte);

    // Strikes the turns that begin before byte `end` of the block and have not been struck yet.
    void Strike(std::uint8_t* block, std::uint32_t end);

    // The block of `size` bytes is done, the next one begins behind it.
    void EndBlock(std::uint32_t size);

private:
    // A prime is 30 quotient + residue, and the list that it is in tells the residue.
    struct Striker {
        std::uint32_t quotient;
        std::int32_t turn; // byte in the block where the next turn begins
    };

    template <unsigned Class>
    static void StrikeClass(std::vector<Striker>& strikers, std::uint8_t* block, std::int32_t end);

    std::array<std::vector<Striker>, 8> classes_;
};

} // namespace tessarolyne

#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace tessarolyne {

// Primes that strike their multiples out of consecutive stretches of a wheel-30 bit map (Wheel30.h). Each
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

} // namespace tessarolyne

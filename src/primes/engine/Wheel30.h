#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

// The bit map of the sieve: byte b stands for the numbers from 30 b to 30 b + 29, and its eight bits for
// those of them that 2, 3 and 5 don't divide.
namespace tessarolyne::Wheel30 {

// Bit k of byte b is the number 30 b + residues[k].
inline constexpr std::array<std::uint8_t, 8> residues = {1, 7, 11, 13, 17, 19, 23, 29};

// From one residue to the next, the last one to the first of the next byte.
inline constexpr std::array<std::uint8_t, 8> steps = {6, 4, 2, 4, 2, 4, 6, 2};

inline constexpr auto bitOfResidue = [] {
    std::array<std::uint8_t, 30> bits{};
    bits.fill(8);
    for (std::uint8_t k = 0; k < 8; ++k) {
        bits[residues[k]] = k;
    }
    return bits;
}();

inline constexpr auto bitsUpTo = [] {
    std::array<std::uint8_t, 30> masks{};
    for (std::size_t residue = 0; residue < 30; ++residue) {
        for (std::size_t k = 0; k < 8; ++k) {
            if (residues[k] <= residue) {
                masks[residue] = static_cast<std::uint8_t>(masks[residue] | (1U << k));
            }
        }
    }
    return masks;
}();

// The bit of a number in its byte, 8 where 2, 3 or 5 divides it.
constexpr std::uint8_t BitOf(std::uint64_t number) {
    return bitOfResidue[static_cast<std::size_t>(number % 30)];
}

// The bits of the numbers in the byte of `number` that are not above it.
constexpr std::uint8_t BitsUpTo(std::uint64_t number) {
    return bitsUpTo[static_cast<std::size_t>(number % 30)];
}

} // namespace tessarolyne::Wheel30

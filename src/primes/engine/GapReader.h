#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tessarolyne {

// Turns a wheel-30 bit map (Wheel30.h), byte after byte, into half the gaps between the primes that it shows.
// Right for gaps below 512: the first wider one between primes begins at 304 599 508 537, and a table of 2^31
// primes ends at 50 685 770 143. No byte may have all its bits, and none of primes above 7 has, since 7
// divides one of the eight numbers.
class GapReader {
public:
    // The most bytes that are read at once: their primes stay in the first-level cache.
    static constexpr std::size_t mostBytes = 2048;

    // Begins at the byte of `prime`, whose bit and those below it are cleared in the map.
    explicit GapReader(std::uint64_t prime);

    // Half the gaps of the next bytes, up to mostBytes of them; valid until the next call.
    std::span<const std::uint8_t> Read(std::span<const std::uint8_t> bytes);

private:
    static constexpr std::size_t mostInByte = 7;
    static constexpr std::size_t room = mostInByte * mostBytes + 16; // vectors write beyond the last one

    std::size_t ReadPlaces(std::span<const std::uint8_t> bytes);

    std::array<std::uint8_t, 1 + room> places_; // half the way from a fixed number to the primes, modulo 256
    std::array<std::uint8_t, room> halfGaps_;
    std::uint8_t lastPlace_; // of the last prime
    std::uint8_t start_ = 0; // the place of the next byte's residue 1
};

} // namespace tessarolyne

#include "primes/engine/GapReader.h"

#include "primes/engine/Wheel30.h"

#include <array>
#include <cstring>

namespace tessarolyne {

namespace {

constexpr std::uint8_t byteWay = 15; // half of 30

// Vectors of the compiler, which splits them on machines that have none so wide.
using Eight = std::uint8_t __attribute__((vector_size(8)));
using Sixteen = std::uint8_t __attribute__((vector_size(16)));

// For each byte of the map, half the way from its residue 1 to each of its primes, and last their number.
constexpr auto placesOfByte = [] {
    std::array<std::array<std::uint8_t, 8>, 256> table{};
    for (unsigned byte = 0; byte < 255; ++byte) {
        for (unsigned k = 0; k < 8; ++k) {
            if ((byte >> k) % 2 != 0) {
                std::uint8_t& count = table[byte][7];
                table[byte][count++] = static_cast<std::uint8_t>(Wheel30::residues[k] / 2);
            }
        }
    }
    return table;
}();

} // namespace

GapReader::GapReader(std::uint64_t prime) : lastPlace_(static_cast<std::uint8_t>(prime % 30 / 2)) {}

// Without a branch, and without waiting for the byte before: eight places are written for every byte of the
// map, and only as many of them are kept as it has primes.
std::size_t GapReader::ReadPlaces(std::span<const std::uint8_t> bytes) {
    Eight start = Eight{} + start_;
    std::uint8_t* const first = places_.data() + 1;
    std::uint8_t* end = first;
    const auto read = [&](std::uint8_t byte) {
        Eight places;
        std::memcpy(&places, placesOfByte[byte].data(), sizeof places);
        places += start;
        std::memcpy(end, &places, sizeof places);
        end += placesOfByte[byte][mostInByte];
        start += byteWay;
    };
    std::size_t i = 0;
    for (; i + 8 <= bytes.size(); i += 8) {
#pragma GCC unroll 8
        for (std::size_t k = 0; k < 8; ++k) {
            read(bytes[i + k]);
        }
    }
    for (; i < bytes.size(); ++i) {
        read(bytes[i]);
    }
    start_ = start[0];
    return static_cast<std::size_t>(end - first);
}

std::span<const std::uint8_t> GapReader::Read(std::span<const std::uint8_t> bytes) {
    places_[0] = lastPlace_;
    const std::size_t count = ReadPlaces(bytes);
    for (std::size_t i = 0; i < count; i += sizeof(Sixteen)) {
        Sixteen from;
        Sixteen to;
        std::memcpy(&from, &places_[i], sizeof from);
        std::memcpy(&to, &places_[i + 1], sizeof to);
        to -= from;
        std::memcpy(&halfGaps_[i], &to, sizeof to);
    }
    lastPlace_ = places_[count];
    return {halfGaps_.data(), count};
}

} // namespace tessarolyne

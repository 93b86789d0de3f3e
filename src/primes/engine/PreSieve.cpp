#include "primes/engine/PreSieve.h"

#include "primes/engine/Wheel30.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace tessarolyne {

namespace {

constexpr std::size_t stretchBytes = 1024;
// Patterns that are laid at once; more pointers than that leave the registers.
constexpr std::size_t layers = 8;

// Grouped so that every period is between 5 and 10 KB.
constexpr std::array<std::array<std::size_t, 3>, 16> groups = {{{7, 23, 37}, {11, 19, 31}, {13, 17, 29},
    {41, 163, 1}, {43, 157, 1}, {47, 151, 1}, {53, 149, 1}, {59, 139, 1}, {61, 137, 1}, {67, 131, 1},
    {71, 127, 1}, {73, 113, 1}, {79, 109, 1}, {83, 107, 1}, {89, 103, 1}, {97, 101, 1}}};

void StrikeAll(std::vector<std::uint8_t>& bytes, std::size_t prime) {
    for (std::size_t k = 0; k < 8; ++k) {
        std::size_t at = 0;
        while ((30 * at + Wheel30::residues[k]) % prime != 0) {
            ++at;
        }
        for (; at < bytes.size(); at += prime) {
            bytes[at] = static_cast<std::uint8_t>(bytes[at] & ~(1U << k));
        }
    }
}

using Layers = std::array<const std::uint8_t*, layers>;

// Lays the patterns on a fresh stretch, or over what is there.
void Lay(std::uint8_t* bytes, const Layers& layersFrom, bool over) {
    // Sixteen bytes at a time, which every machine has. Thirty-two are no faster: the patterns come from the
    // cache.
    using Word = std::uint64_t __attribute__((vector_size(16)));
    const Layers from = layersFrom; // in registers
    for (std::size_t i = 0; i < stretchBytes; i += sizeof(Word)) {
        Word word;
        std::memcpy(&word, (over ? bytes : from[0]) + i, sizeof word);
#pragma GCC unroll 8
        for (std::size_t layer = over ? 0 : 1; layer < layers; ++layer) {
            Word pattern;
            std::memcpy(&pattern, from[layer] + i, sizeof pattern);
            word &= pattern;
        }
        std::memcpy(bytes + i, &word, sizeof word);
    }
}

} // namespace

PreSieve::PreSieve() {
    patterns_.reserve(groups.size());
    for (const auto& group : groups) {
        const std::size_t period = group[0] * group[1] * group[2];
        Pattern& pattern = patterns_.emplace_back(
            Pattern{period, std::vector<std::uint8_t>(period + stretchBytes, std::uint8_t{0xFF})});
        for (const std::size_t prime : group) {
            if (prime > 1) {
                StrikeAll(pattern.bytes, prime);
            }
        }
    }
}

void PreSieve::Fill(std::uint8_t* bytes, std::size_t size, std::uint64_t firstByte) const {
    std::array<std::uint8_t, stretchBytes> rest;
    for (std::size_t done = 0; done < size; done += stretchBytes) {
        const std::size_t count = std::min(stretchBytes, size - done);
        std::uint8_t* target = count == stretchBytes ? bytes + done : rest.data();
        Layers from{};
        for (std::size_t i = 0; i < patterns_.size(); ++i) {
            from[i % layers] = patterns_[i].bytes.data() + (firstByte + done) % patterns_[i].period;
            if ((i + 1) % layers == 0) {
                Lay(target, from, i >= layers);
            }
        }
        if (count < stretchBytes) {
            std::memcpy(bytes + done, rest.data(), count);
        }
    }
}

} // namespace tessarolyne

#include "primes/engine/BlockSieve.h"

#include <cstring>
#include <type_traits>
#include <utility>

namespace tessarolyne {

namespace {

// For a prime p = 30 q + r, r the residue of `Class`, and a cofactor m = 30 a + s, s the residue of bit
// `Cofactor`: the product's bit depends on r and s alone, and from one cofactor to the next the product moves
// by q * steps + carry bytes.
template <unsigned Class, unsigned Cofactor>
struct StrikeProduct {
    static constexpr unsigned residue = Wheel30::residues[Class];
    static constexpr unsigned cofactor = Wheel30::residues[Cofactor];
    static constexpr unsigned step = (Cofactor == 7 ? 31 : Wheel30::residues[(Cofactor + 1) % 8]) - cofactor;
    static constexpr unsigned carry = residue * (cofactor + step) / 30 - residue * cofactor / 30;
    static constexpr auto keep =
        static_cast<std::uint8_t>(~(1U << Wheel30::BitOf(std::uint64_t{residue} * cofactor)));

    // Bytes from the product with cofactor residue 1 to this one.
    static constexpr std::uint32_t Offset(std::uint32_t quotient) {
        return quotient * (cofactor - 1) + residue * cofactor / 30;
    }
};

// Strikes from the product at byte `at` with cofactor bit `cofactor` to the end of the stretch; gives the
// cofactor bit of the first product behind it and leaves its byte in `at`. Whole turns of the wheel, eight
// products each, go without a look at the end for each product.
template <unsigned Class, unsigned... Bits>
inline unsigned StrikeFrom(std::integer_sequence<unsigned, Bits...>, unsigned cofactor, std::uint8_t* bytes,
    std::uint32_t size, std::uint32_t quotient, std::uint32_t& at) {
    const std::uint32_t prime = 30 * quotient + Wheel30::residues[Class];
    const std::uint32_t reach = StrikeProduct<Class, 7>::Offset(quotient);
    for (unsigned behind = 0;; cofactor = 0) {
        for (; cofactor == 0 && reach < size && at < size - reach; at += prime) {
            ((bytes[at + StrikeProduct<Class, Bits>::Offset(quotient)] &= StrikeProduct<Class, Bits>::keep),
                ...);
        }
        const auto strike = [&]<unsigned Bit>(std::integral_constant<unsigned, Bit>) {
            using Product = StrikeProduct<Class, Bit>;
            behind = Bit;
            if (Bit < cofactor) {
                return true;
            }
            if (at >= size) {
                return false;
            }
            bytes[at] &= Product::keep;
            at += quotient * Product::step + Product::carry;
            return true;
        };
        if (!(strike(std::integral_constant<unsigned, Bits>()) && ...)) {
            return behind;
        }
    }
}

// A first-level cache of 32 KB is the least that machines of the last twenty years have; the rest of it is
// left to the strikers.
constexpr std::uint32_t windowBytes = 28 * 1024;
constexpr std::uint32_t windowsPerBlock = 6;

// Larger primes make too few turns of the wheel in a window.
constexpr std::uint64_t largestInWindow = 8192;

// Rank of 167, the first prime that the patterns leave.
constexpr std::int32_t firstStrikerRank = 38;

// Vectors of the compiler, which splits them on machines that have none so wide.
using Eight = std::uint8_t __attribute__((vector_size(8)));
using Sixteen = std::uint8_t __attribute__((vector_size(16)));

// The multiples of the primes from 7 to 163, and these primes, struck out by copying: such a pattern repeats
// after as many bytes as the product of its primes, so 16 patterns of two or three primes each are laid over
// the map, each the period and one stretch more, so that no stretch wraps round.
using Pattern = std::vector<std::uint8_t>;
constexpr std::size_t stretchBytes = 1024;
// Patterns that are laid at once; more pointers than that leave the registers.
constexpr std::size_t layers = 8;

void StrikeAll(Pattern& bytes, std::size_t prime) {
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

// About 150 KB, in a few dozen microseconds.
std::vector<Pattern> MakePatterns() {
    // Grouped so that every period is between 5 and 10 KB.
    constexpr std::size_t groups[][3] = {{7, 23, 37}, {11, 19, 31}, {13, 17, 29}, {41, 163, 1}, {43, 157, 1},
        {47, 151, 1}, {53, 149, 1}, {59, 139, 1}, {61, 137, 1}, {67, 131, 1}, {71, 127, 1}, {73, 113, 1},
        {79, 109, 1}, {83, 107, 1}, {89, 103, 1}, {97, 101, 1}};
    std::vector<Pattern> patterns;
    for (const auto& [first, second, third] : groups) {
        Pattern& pattern = patterns.emplace_back(first * second * third + stretchBytes, std::uint8_t{0xFF});
        for (const std::size_t prime : {first, second, third}) {
            if (prime > 1) {
                StrikeAll(pattern, prime);
            }
        }
    }
    return patterns;
}

// Lays patterns on a fresh stretch, or over what is there: sixteen bytes at a time, which every machine has.
// Thirty-two are no faster, as the patterns come from the cache.
void Lay(std::uint8_t* bytes, const std::array<const std::uint8_t*, layers>& patterns, bool over) {
    const auto from = patterns; // in registers
    for (std::size_t i = 0; i < stretchBytes; i += sizeof(Sixteen)) {
        Sixteen word;
        std::memcpy(&word, (over ? bytes : from[0]) + i, sizeof word);
#pragma GCC unroll 8
        for (std::size_t layer = over ? 0 : 1; layer < layers; ++layer) {
            Sixteen pattern;
            std::memcpy(&pattern, from[layer] + i, sizeof pattern);
            word &= pattern;
        }
        std::memcpy(bytes + i, &word, sizeof word);
    }
}

// Fills whole stretches that begin with byte `firstByte` of the map.
void PreSieve(std::uint8_t* bytes, std::size_t size, std::uint64_t firstByte) {
    static const std::vector<Pattern> patterns = MakePatterns();
    for (std::size_t done = 0; done < size; done += stretchBytes) {
        std::array<const std::uint8_t*, layers> from{};
        for (std::size_t i = 0; i < patterns.size(); ++i) {
            from[i % layers] = patterns[i].data() + (firstByte + done) % (patterns[i].size() - stretchBytes);
            if ((i + 1) % layers == 0) {
                Lay(bytes + done, from, i >= layers);
            }
        }
    }
}

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

void StrikeList::Add(std::uint64_t prime, std::uint64_t startByte) {
    std::uint64_t cofactor = std::max(prime, (30 * startByte + prime - 1) / prime);
    while (Wheel30::BitOf(cofactor) == 8) {
        ++cofactor;
    }
    const std::uint64_t place = prime * cofactor / 30 - startByte;
    classes_[Wheel30::BitOf(prime)].push_back({static_cast<std::uint32_t>(prime / 30),
        static_cast<std::uint32_t>(8 * place + Wheel30::BitOf(cofactor))});
}

template <unsigned Class>
void StrikeList::StrikeClass(std::vector<Striker>& strikers, std::uint8_t* bytes, std::uint32_t size) {
    for (Striker& striker : strikers) {
        std::uint32_t at = striker.place / 8;
        const unsigned cofactor = StrikeFrom<Class>(
            std::make_integer_sequence<unsigned, 8>(), striker.place % 8, bytes, size, striker.quotient, at);
        striker.place = 8 * (at - size) + cofactor;
    }
}

void StrikeList::Strike(std::uint8_t* bytes, std::uint32_t size) {
    [&]<std::size_t... Classes>(std::index_sequence<Classes...>) {
        (StrikeClass<Classes>(classes_[Classes], bytes, size), ...);
    }
    (std::make_index_sequence<8>());
}

BlockSieve::BlockSieve(const PrimeTable& table)
    : table_(table), nextStriker_(table, firstStrikerRank),
      block_(std::size_t{windowBytes} * windowsPerBlock), blockByte_(table.ConsecutiveBack() / 30),
      reached_(table.ConsecutiveBack()), lastPlace_(static_cast<std::uint8_t>(reached_ % 30 / 2)) {}

void BlockSieve::BeginBlock(std::uint64_t end) {
    blockByte_ += blockSize_;
    // The known primes decide all numbers below the square of the last one.
    const std::uint64_t known = std::min<std::uint64_t>(table_.ConsecutiveBack(), 0xFFFFFFFF);
    const std::uint64_t bytes = std::min(known * known / 30, end / 30 + 1) - blockByte_;
    blockSize_ = static_cast<std::uint32_t>(std::min<std::uint64_t>(bytes, block_.size()));
    windowStart_ = 0;
    // The last known prime's square lies behind the block, so the cursor stays within what is known.
    const std::uint64_t blockEnd = 30 * (blockByte_ + blockSize_);
    for (; nextStriker_.Value() * nextStriker_.Value() <= blockEnd; nextStriker_.Next()) {
        (nextStriker_.Value() > largestInWindow ? blockStrikers_ : windowStrikers_)
            .Add(nextStriker_.Value(), blockByte_);
    }
    PreSieve(block_.data(), blockSize_, blockByte_);
    blockStrikers_.Strike(block_.data(), blockSize_);
}

void BlockSieve::DecideWindow(std::uint64_t end) {
    if (windowStart_ == blockSize_) {
        BeginBlock(end);
    }
    const std::uint32_t size = std::min(windowBytes, blockSize_ - windowStart_);
    std::uint8_t* const window = block_.data() + windowStart_;
    windowStrikers_.Strike(window, size);
    const std::uint64_t firstByte = blockByte_ + windowStart_;
    if (reached_ / 30 == firstByte) {
        window[0] &= static_cast<std::uint8_t>(~Wheel30::BitsUpTo(reached_));
    }
    windowStart_ += size;
    reached_ = 30 * (firstByte + size) - 1;
    if (reached_ > end) {
        window[size - 1] &= Wheel30::BitsUpTo(end);
        reached_ = end;
    }
    unread_ = {window, size};
}

// Without a branch, and without waiting for the byte before: eight places are written for every byte of the
// map, and only as many of them are kept as it has primes.
std::size_t BlockSieve::ReadPlaces(std::span<const std::uint8_t> bytes) {
    constexpr std::uint8_t byteWay = 15; // half of 30
    Eight start = Eight{} + start_;
    std::uint8_t* const first = places_.data() + 1;
    std::uint8_t* end = first;
#pragma GCC unroll 8
    for (const std::uint8_t byte : bytes) {
        Eight places;
        std::memcpy(&places, placesOfByte[byte].data(), sizeof places);
        places += start;
        std::memcpy(end, &places, sizeof places);
        end += placesOfByte[byte][7];
        start += byteWay;
    }
    start_ = start[0];
    return static_cast<std::size_t>(end - first);
}

std::span<const std::uint8_t> BlockSieve::NextHalfGaps() {
    std::size_t count = 0;
    while (count == 0 && !unread_.empty()) {
        const std::size_t size = std::min(unread_.size(), mostBytes);
        count = ReadPlaces(unread_.first(size));
        unread_ = unread_.subspan(size);
    }
    places_[0] = lastPlace_;
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

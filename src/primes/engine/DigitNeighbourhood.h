#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>

// How the numbers of a prime file are told from their digits, and from one to the next by their gaps.
namespace tessarolyne {

// What ends a field. Behind a number all of these mean the same: the next field begins.
constexpr bool EndsField(char c) {
    constexpr std::uint32_t ends = 1U << '\t' | 1U << '\n' | 1U << '\r';
    const auto code = static_cast<unsigned char>(c);
    return code < 32 && (ends >> code & 1U) != 0;
}

// Half a gap less one, which is at most 254 for the even gaps from 2 to 510 and more for any other: an odd
// one is rotated into the highest bit.
constexpr std::uint64_t HalfGapLessOne(std::uint64_t from, std::uint64_t to) {
    return std::rotr(to - from - 2, 1);
}
inline constexpr std::uint64_t largestHalfGapLessOne = 254;

// The digits that a number has in common with those around it: all but the last four. Numbers of 5 to 12
// digits have such a neighbourhood; the largest that the program accepts has 12.
class DigitNeighbourhood {
public:
    static constexpr std::size_t readAhead = 16;

    // Makes it the one of a number with these digits and this value, none for a size without one. The first 8
    // of the digits' bytes can be read, however many count.
    void Settle(const char* digits, std::size_t size, std::uint64_t value);
    bool IsSettled() const { return size_ != 0; }
    void Leave() { size_ = 0; }

    // Reads numbers of the neighbourhood with small gaps, at most as many as `halfGaps` has room for, and
    // gives how many; moves `at` behind them and `last` to the last of them. readAhead bytes beyond `end` can
    // be read.
    std::size_t Read(
        const char*& at, const char* end, std::span<std::uint8_t> halfGaps, std::uint64_t& last) const;

private:
    static constexpr std::size_t lowDigits = 4;

    std::size_t size_ = 0; // digits of a number, 0 for no neighbourhood
    std::uint64_t leading_ = 0;
    std::uint64_t mask_ = 0;
    std::uint64_t base_ = 0;
};

} // namespace tessarolyne

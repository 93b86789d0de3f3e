#include "primes/engine/DigitNeighbourhood.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace tessarolyne {

namespace {

std::uint32_t LoadLittleEndian(const char* bytes) {
    const auto byte = [&](int i) { return std::uint32_t{static_cast<unsigned char>(bytes[i])}; };
    return byte(0) | byte(1) << 8U | byte(2) << 16U | byte(3) << 24U;
}

} // namespace

void DigitNeighbourhood::Settle(const char* digits, std::size_t size, std::uint64_t value) {
    size_ = 0;
    if (size > lowDigits && size <= lowDigits + sizeof leading_) {
        size_ = size;
        std::array<unsigned char, sizeof leading_> mask{};
        std::fill_n(mask.begin(), size - lowDigits, static_cast<unsigned char>(0xFF));
        std::memcpy(&mask_, mask.data(), sizeof mask_);
        std::memcpy(&leading_, digits, sizeof leading_);
        leading_ &= mask_;
        base_ = value - value % 10000;
    }
}

std::size_t DigitNeighbourhood::Read(
    const char*& at, const char* end, std::span<std::uint8_t> halfGaps, std::uint64_t& last) const {
    const std::size_t size = size_;
    const std::uint64_t leading = leading_;
    const std::uint64_t mask = mask_;
    const char* place = at;
    // All are of one size, so the room for numbers is room for bytes as well.
    const auto most = static_cast<std::ptrdiff_t>(halfGaps.size() * (size + 1));
    const char* const stop = end - place > most ? place + most : end;
    std::uint64_t before = last - base_; // as the low digits of the one before, which may wrap
    std::uint8_t* halfGap = halfGaps.data();
    while (place < stop) {
        std::uint64_t head = 0;
        std::memcpy(&head, place, sizeof head);
        // Four digits as bytes of 0 to 9.
        const std::uint32_t digits = LoadLittleEndian(place + size - lowDigits) ^ 0x30303030U;
        const std::uint64_t strange = ((digits + 0x76767676U) | digits) & 0x80808080U;
        if ((((head & mask) ^ leading) | strange) != 0 || !EndsField(place[size])) {
            break;
        }
        // Each byte ten times and the next one added, which leaves two pairs; then the same with these.
        const std::uint32_t pairs = ((digits * (10U << 8U | 1U)) >> 8U) & 0x00FF00FFU;
        const std::uint64_t low = (pairs * (100U << 16U | 1U)) >> 16U;
        const std::uint64_t halfGapLessOne = HalfGapLessOne(before, low);
        if (halfGapLessOne > largestHalfGapLessOne) {
            break;
        }
        *halfGap++ = static_cast<std::uint8_t>(halfGapLessOne + 1);
        before = low;
        place += size + 1;
    }
    at = place;
    last = base_ + before;
    return static_cast<std::size_t>(halfGap - halfGaps.data());
}

} // namespace tessarolyne

#include "primes/engine/StrikeList.h"

#include "primes/engine/StrikeProduct.h"
#include "primes/engine/Wheel30.h"

#include <algorithm>

namespace tessarolyne {

namespace {

template <unsigned Class, unsigned Cofactor>
inline bool StrikeOnce(std::uint8_t* bytes, std::uint32_t size, std::uint32_t quotient, std::uint32_t& at) {
    using Here = StrikeProduct<Class, Cofactor>;
    if (at >= size) {
        return false;
    }
    bytes[at] &= Here::keep;
    at += quotient * Here::step + Here::carry;
    return true;
}

// Whole turns of the wheel, eight products each, as long as a turn's last product lies in the stretch.
template <unsigned Class>
inline void StrikeTurns(std::uint8_t* bytes, std::uint32_t size, std::uint32_t quotient, std::uint32_t& at) {
    const std::uint32_t prime = 30 * quotient + Wheel30::residues[Class];
    const std::uint32_t reach = StrikeProduct<Class, 7>::Offset(quotient);
    if (size <= reach) {
        return;
    }
    for (; at < size - reach; at += prime) {
        StrikeTurn<Class>(bytes + at, quotient);
    }
}

// Strikes from the product at byte `at` with cofactor bit `cofactor` to the end of the stretch; gives the
// cofactor bit of the first product behind it and leaves its byte in `at`.
template <unsigned Class>
inline unsigned StrikeFrom(
    unsigned cofactor, std::uint8_t* bytes, std::uint32_t size, std::uint32_t quotient, std::uint32_t& at) {
    for (;; cofactor = 0) {
        switch (cofactor) {
        case 0:
            StrikeTurns<Class>(bytes, size, quotient, at);
            if (!StrikeOnce<Class, 0>(bytes, size, quotient, at)) {
                return 0;
            }
            [[fallthrough]];
        case 1:
            if (!StrikeOnce<Class, 1>(bytes, size, quotient, at)) {
                return 1;
            }
            [[fallthrough]];
        case 2:
            if (!StrikeOnce<Class, 2>(bytes, size, quotient, at)) {
                return 2;
            }
            [[fallthrough]];
        case 3:
            if (!StrikeOnce<Class, 3>(bytes, size, quotient, at)) {
                return 3;
            }
            [[fallthrough]];
        case 4:
            if (!StrikeOnce<Class, 4>(bytes, size, quotient, at)) {
                return 4;
            }
            [[fallthrough]];
        case 5:
            if (!StrikeOnce<Class, 5>(bytes, size, quotient, at)) {
                return 5;
            }
            [[fallthrough]];
        case 6:
            if (!StrikeOnce<Class, 6>(bytes, size, quotient, at)) {
                return 6;
            }
            [[fallthrough]];
        default:
            if (!StrikeOnce<Class, 7>(bytes, size, quotient, at)) {
                return 7;
            }
        }
    }
}

} // namespace

void StrikeList::Add(std::uint64_t prime, std::uint64_t startByte) {
    std::uint64_t cofactor = std::max(prime, (30 * startByte + prime - 1) / prime);
    while (Wheel30::bitOfResidue[cofactor % 30] == 8) {
        ++cofactor;
    }
    const std::uint64_t place = prime * cofactor / 30 - startByte;
    classes_[Wheel30::bitOfResidue[prime % 30]].push_back({static_cast<std::uint32_t>(prime / 30),
        static_cast<std::uint32_t>(8 * place + Wheel30::bitOfResidue[cofactor % 30])});
}

template <unsigned Class>
void StrikeList::StrikeClass(std::vector<Striker>& strikers, std::uint8_t* bytes, std::uint32_t size) {
    for (Striker& striker : strikers) {
        std::uint32_t at = striker.place / 8;
        const unsigned cofactor = StrikeFrom<Class>(striker.place % 8, bytes, size, striker.quotient, at);
        striker.place = 8 * (at - size) + cofactor;
    }
}

void StrikeList::Strike(std::uint8_t* bytes, std::uint32_t size) {
    StrikeClass<0>(classes_[0], bytes, size);
    StrikeClass<1>(classes_[1], bytes, size);
    StrikeClass<2>(classes_[2], bytes, size);
    StrikeClass<3>(classes_[3], bytes, size);
    StrikeClass<4>(classes_[4], bytes, size);
    StrikeClass<5>(classes_[5], bytes, size);
    StrikeClass<6>(classes_[6], bytes, size);
    StrikeClass<7>(classes_[7], bytes, size);
}

} // namespace tessarolyne

#include "primes/engine/StrikeList.h"

#include "primes/engine/StrikeProduct.h"
#include "primes/engine/Wheel30.h"

#include <algorithm>
#include <type_traits>
#include <utility>

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
template <unsigned Class, unsigned... Bits>
inline unsigned StrikeFrom(std::integer_sequence<unsigned, Bits...>, unsigned cofactor, std::uint8_t* bytes,
    std::uint32_t size, std::uint32_t quotient, std::uint32_t& at) {
    for (unsigned behind = 0;; cofactor = 0) {
        if (cofactor == 0) {
            StrikeTurns<Class>(bytes, size, quotient, at);
        }
        const auto strike = [&]<unsigned Bit>(std::integral_constant<unsigned, Bit>) {
            behind = Bit;
            return Bit < cofactor || StrikeOnce<Class, Bit>(bytes, size, quotient, at);
        };
        if (!(strike(std::integral_constant<unsigned, Bits>()) && ...)) {
            return behind;
        }
    }
}

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

} // namespace tessarolyne

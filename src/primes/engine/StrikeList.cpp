#include "primes/engine/StrikeList.h"

#include "primes/engine/Wheel30.h"

#include <algorithm>
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
    static constexpr unsigned step = Wheel30::steps[Cofactor];
    static constexpr unsigned carry = residue * (cofactor + step) / 30 - residue * cofactor / 30;
    static constexpr auto keep =
        static_cast<std::uint8_t>(~(1U << Wheel30::BitOf(std::uint64_t{residue} * cofactor)));

    // Bytes from the product with cofactor residue 1 to this one.
    static constexpr std::uint32_t Offset(std::uint32_t quotient) {
        return quotient * (cofactor - 1) + residue * cofactor / 30;
    }
};

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

#pragma once

#include "primes/engine/Wheel30.h"

#include <cstdint>
#include <utility>

namespace tessarolyne {

// For a prime p = 30 q + r, r the residue of `Class`, and a cofactor m = 30 a + s, s the residue of bit
// `Cofactor`: the product's bit depends on r and s alone, and from one cofactor to the next the product moves
// by q * steps + carry bytes.
template <unsigned Class, unsigned Cofactor>
struct StrikeProduct {
    static constexpr unsigned residue = Wheel30::residues[Class];
    static constexpr unsigned cofactor = Wheel30::residues[Cofactor];
    static constexpr unsigned step = Wheel30::steps[Cofactor];
    static constexpr unsigned carry = residue * (cofactor + step) / 30 - residue * cofactor / 30;
    static constexpr auto keep = static_cast<std::uint8_t>(~(1U << Wheel30::BitOf(residue * cofactor)));

    // Bytes from the product with cofactor residue 1 to this one.
    static constexpr std::uint32_t Offset(std::uint32_t quotient) {
        return quotient * (cofactor - 1) + residue * cofactor / 30;
    }
};

// Strikes the eight products of one turn of the wheel, the first of them in byte `turn`[0].
template <unsigned Class>
// Written through in the fold, which clang-tidy 14 looks at before it is instantiated.
// NOLINTNEXTLINE(readability-non-const-parameter)
inline void StrikeTurn(std::uint8_t* turn, std::uint32_t quotient) {
    const auto strike = [&]<unsigned... Cofactors>(std::integer_sequence<unsigned, Cofactors...>) {
        ((turn[StrikeProduct<Class, Cofactors>::Offset(quotient)] &= StrikeProduct<Class, Cofactors>::keep),
            ...);
    };
    strike(std::make_integer_sequence<unsigned, 8>{});
}

} // namespace tessarolyne

#pragma once

#include <cstdint>

namespace tessarolyne {

// The number whose product with the odd `n` is 1 modulo 2^64. By Newton's iteration: each step doubles the
// right bits, of which n itself has three.
constexpr std::uint64_t InverseModulo2To64(std::uint64_t n) {
    std::uint64_t inverse = n;
    for (int step = 0; step < 5; ++step) {
        inverse *= 2 - n * inverse;
    }
    return inverse;
}

// Products modulo one odd number without divisions (P. L. Montgomery, "Modular multiplication without trial
// division", 1985). Values are kept times 2^64; only sums, products and comparisons with One() and MinusOne()
// are needed here, so nothing ever converts back.
class Montgomery {
public:
    // `modulus` is odd and above 1.
    explicit Montgomery(std::uint64_t modulus)
        : modulus_(modulus), inverse_(InverseModulo2To64(modulus)), one_((~modulus + 1) % modulus),
          square_(static_cast<std::uint64_t>(Wide{one_} * one_ % modulus)) {}

    std::uint64_t One() const { return one_; }
    std::uint64_t MinusOne() const { return modulus_ - one_; }

    // The form of any number.
    std::uint64_t From(std::uint64_t value) const { return Multiply(value % modulus_, square_); }

    std::uint64_t Multiply(std::uint64_t a, std::uint64_t b) const {
        const Wide product = Wide{a} * b;
        const auto high = static_cast<std::uint64_t>(product >> 64);
        const std::uint64_t quotient = static_cast<std::uint64_t>(product) * inverse_;
        const auto taken = static_cast<std::uint64_t>(Wide{quotient} * modulus_ >> 64);
        return high < taken ? high - taken + modulus_ : high - taken;
    }

    // a + 1 in ordinary terms, for a form below the modulus.
    std::uint64_t PlusOne(std::uint64_t a) const {
        return a >= modulus_ - one_ ? a - (modulus_ - one_) : a + one_;
    }

private:
    __extension__ using Wide = unsigned __int128;

    std::uint64_t modulus_;
    std::uint64_t inverse_;
    std::uint64_t one_;
    std::uint64_t square_; // 2^128 mod modulus
};

} // namespace tessarolyne

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

// The upper 64 bits of a product.
constexpr std::uint64_t HighHalf(std::uint64_t a, std::uint64_t b) {
#ifdef __SIZEOF_INT128__
    __extension__ using Wide = unsigned __int128;
    return static_cast<std::uint64_t>(Wide{a} * b >> 64);
#else // where the machine has 32 bits
    constexpr std::uint64_t low = 0xFFFFFFFF;
    const std::uint64_t middle = (a >> 32) * (b & low) + ((a & low) * (b & low) >> 32);
    const std::uint64_t other = (a & low) * (b >> 32) + (middle & low);
    return (a >> 32) * (b >> 32) + (middle >> 32) + (other >> 32);
#endif
}

// Products modulo one odd number without divisions (P. L. Montgomery, "Modular multiplication without trial
// division", 1985). Values are kept times 2^64; only sums, products and comparisons with One() and MinusOne()
// are needed here, so nothing ever converts back.
class Montgomery {
public:
    // `modulus` is odd and above 1.
    explicit Montgomery(std::uint64_t modulus)
        : modulus_(modulus), inverse_(InverseModulo2To64(modulus)), one_((~modulus + 1) % modulus),
          square_(PlusOne(one_)) {
        for (int power = 1; power < 64; power *= 2) {
            square_ = Multiply(square_, square_); // the form of 2^power becomes that of its square
        }
    }

    std::uint64_t One() const { return one_; }
    std::uint64_t MinusOne() const { return modulus_ - one_; }

    // The form of any number.
    std::uint64_t From(std::uint64_t value) const { return Multiply(value % modulus_, square_); }

    std::uint64_t Multiply(std::uint64_t a, std::uint64_t b) const {
        const std::uint64_t high = HighHalf(a, b);
        const std::uint64_t taken = HighHalf(a * b * inverse_, modulus_);
        return high < taken ? high - taken + modulus_ : high - taken;
    }

    // a + 1 in ordinary terms, for a form below the modulus.
    std::uint64_t PlusOne(std::uint64_t a) const {
        return a >= modulus_ - one_ ? a - (modulus_ - one_) : a + one_;
    }

private:
    std::uint64_t modulus_;
    std::uint64_t inverse_;
    std::uint64_t one_;
    std::uint64_t square_; // 2^128 mod modulus
};

} // namespace tessarolyne

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace tessarolyne {

// Whether `n` is prime; certain for every 64-bit number, in about a microsecond.
bool IsPrime(std::uint64_t n);

// The largest whole number whose square isn't above `n`.
std::uint64_t FloorSquareRoot(std::uint64_t n);

// At least so many primes are not above `n`, to within a thousandth for large n; 0 below the formula's range.
// P. Dusart, "Estimates of some functions over primes without R.H." (2010): for x >= 88783,
// pi(x) >= x/ln x (1 + 1/ln x + 2/ln^2 x).
double LeastPrimeCount(std::uint64_t n);

// The prime factors of one number in rising order, a factor repeated as often as it divides.
class PrimeFactors {
public:
    // `n` is above 0; 1 has no factors.
    explicit PrimeFactors(std::uint64_t n);

    std::span<const std::uint64_t> All() const { return {factors_.data(), count_}; }

private:
    void Add(std::uint64_t prime) { factors_[count_++] = prime; }
    void Split(std::uint64_t n);

    std::array<std::uint64_t, 64> factors_{};
    std::size_t count_ = 0;
};

} // namespace tessarolyne

#include "primes/engine/Primality.h"

#include "primes/engine/Montgomery.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numeric>

namespace tessarolyne {

namespace {

constexpr std::uint64_t trialEnd = 512;

// An odd divisor d divides n when n times d's inverse modulo 2^64 isn't above the largest quotient
// (2^64-1)/d: a multiplication instead of a division (Granlund and Montgomery, 1994).
struct TrialDivisor {
    std::uint64_t prime;
    std::uint64_t inverse;
    std::uint64_t largestQuotient;
};

constexpr bool IsSmallPrime(std::uint64_t n) {
    for (std::uint64_t d = 2; d * d <= n; ++d) {
        if (n % d == 0) {
            return false;
        }
    }
    return n > 1;
}

constexpr std::size_t CountTrialDivisors() {
    std::size_t count = 0;
    for (std::uint64_t n = 3; n < trialEnd; n += 2) {
        count += static_cast<std::size_t>(IsSmallPrime(n));
    }
    return count;
}

constexpr auto trialDivisors = [] {
    std::array<TrialDivisor, CountTrialDivisors()> divisors{};
    std::size_t count = 0;
    for (std::uint64_t n = 3; n < trialEnd; n += 2) {
        if (IsSmallPrime(n)) {
            divisors[count++] = {n, InverseModulo2To64(n), ~std::uint64_t{0} / n};
        }
    }
    return divisors;
}();

bool PassesMillerRabin(const Montgomery& field, std::uint64_t n, std::uint64_t base) {
    std::uint64_t power = field.From(base);
    if (power == 0) {
        return true;
    }
    const int twos = std::countr_zero(n - 1);
    const std::uint64_t exponent = (n - 1) >> twos;
    const std::uint64_t factor = power;
    for (int bit = static_cast<int>(std::bit_width(exponent)) - 2; bit >= 0; --bit) {
        power = field.Multiply(power, power);
        if ((exponent >> bit) % 2 != 0) {
            power = field.Multiply(power, factor);
        }
    }
    if (power == field.One() || power == field.MinusOne()) {
        return true;
    }
    for (int i = 1; i < twos; ++i) {
        power = field.Multiply(power, power);
        if (power == field.MinusOne()) {
            return true;
        }
    }
    return false;
}

// For odd n that no trial divisor divides.
bool IsPrimeWithoutSmallFactor(std::uint64_t n) {
    if (n < trialEnd * trialEnd) {
        return true;
    }
    const Montgomery field(n);
    const auto passes = [&](std::uint64_t base) { return PassesMillerRabin(field, n, base); };
    // Bases that leave no composite below the bound: G. Jaeschke (1993).
    if (n < 1122004669633) {
        constexpr std::array<std::uint64_t, 4> bases = {2, 13, 23, 1662803};
        return std::all_of(bases.begin(), bases.end(), passes);
    }
    // And none below 2^64: J. Sinclair (2011), verified with J. Feitsma's list of pseudoprimes.
    constexpr std::array<std::uint64_t, 7> bases = {2, 325, 9375, 28178, 450775, 9780504, 1795265022};
    return std::all_of(bases.begin(), bases.end(), passes);
}

// A proper factor of the odd composite n, or n itself when the walk from `start` finds none.
// R. P. Brent, "An improved Monte Carlo factorization algorithm" (1980).
std::uint64_t FactorByWalk(std::uint64_t n, std::uint64_t start) {
    constexpr std::uint64_t stride = 64; // differences gathered before a greatest common divisor is taken
    const Montgomery field(n);
    const auto step = [&](std::uint64_t x) { return field.PlusOne(field.Multiply(x, x)); };
    const auto distance = [](std::uint64_t a, std::uint64_t b) { return a > b ? a - b : b - a; };
    std::uint64_t walker = field.From(start);
    std::uint64_t anchor = walker;
    std::uint64_t before = walker;
    std::uint64_t divisor = 1;
    for (std::uint64_t length = 1; divisor == 1; length *= 2) {
        anchor = walker;
        for (std::uint64_t i = 0; i < length; ++i) {
            walker = step(walker);
        }
        for (std::uint64_t done = 0; done < length && divisor == 1; done += stride) {
            before = walker;
            std::uint64_t product = field.One();
            for (std::uint64_t i = std::min(stride, length - done); i > 0; --i) {
                walker = step(walker);
                product = field.Multiply(product, distance(walker, anchor));
            }
            divisor = std::gcd(product, n);
        }
    }
    if (divisor == n) {
        do {
            before = step(before);
            divisor = std::gcd(distance(before, anchor), n);
        } while (divisor == 1);
    }
    return divisor;
}

} // namespace

bool IsPrime(std::uint64_t n) {
    if (n % 2 == 0) {
        return n == 2;
    }
    for (const TrialDivisor& divisor : trialDivisors) {
        if (n * divisor.inverse <= divisor.largestQuotient) {
            return n == divisor.prime;
        }
    }
    return n > 1 && IsPrimeWithoutSmallFactor(n);
}

std::uint64_t FloorSquareRoot(std::uint64_t n) {
    // The floating-point root can be off by one on either side above 2^53, and its square can pass 2^64.
    constexpr std::uint64_t largestRoot = 4294967295;
    auto root = std::min(static_cast<std::uint64_t>(std::sqrt(static_cast<double>(n))), largestRoot);
    while (root * root > n) {
        --root;
    }
    while (root < largestRoot && (root + 1) * (root + 1) <= n) {
        ++root;
    }
    return root;
}

double LeastPrimeCount(std::uint64_t n) {
    if (n < 88783) {
        return 0;
    }
    const auto x = static_cast<double>(n);
    const double log = std::log(x);
    return x / log * (1 + 1 / log + 2 / (log * log));
}

PrimeFactors::PrimeFactors(std::uint64_t n) {
    for (int twos = std::countr_zero(n); twos > 0; --twos) {
        Add(2);
        n /= 2;
    }
    for (const TrialDivisor& divisor : trialDivisors) {
        std::uint64_t quotient = n * divisor.inverse;
        while (quotient <= divisor.largestQuotient) {
            Add(divisor.prime);
            n = quotient;
            quotient = n * divisor.inverse;
        }
        if (divisor.prime * divisor.prime > n) {
            break;
        }
    }
    if (n > 1) {
        Split(n);
        std::sort(factors_.begin(), factors_.begin() + static_cast<std::ptrdiff_t>(count_));
    }
}

// Adds the factors of n, which has none below trialEnd or is prime and below trialEnd squared.
void PrimeFactors::Split(std::uint64_t n) {
    if (IsPrimeWithoutSmallFactor(n)) {
        Add(n);
        return;
    }
    std::uint64_t divisor = n;
    for (std::uint64_t start = 2; divisor == n; ++start) {
        divisor = FactorByWalk(n, start);
    }
    Split(divisor);
    Split(n / divisor);
}

} // namespace tessarolyne

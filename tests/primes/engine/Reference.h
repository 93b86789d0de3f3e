#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

namespace tessarolyne::Reference {

using Numbers = std::vector<std::uint64_t>;

// The slow obvious way: candidate by candidate, each divided by the table. `divisionsLeft` runs down with
// every division; at 0 the stop flag counts as raised.
inline std::uint64_t NbresPremCalc(Numbers& table, std::uint64_t limit, std::int64_t& divisionsLeft) {
    std::uint64_t candidate = table.back();
    while (limit == 0 || limit > candidate) {
        candidate += 2;
        const auto root = static_cast<std::uint64_t>(std::sqrt(static_cast<double>(candidate)));
        bool isPrime = true;
        for (std::size_t i = 1; isPrime && table[i] <= root;) {
            const bool divides = candidate % table[i] == 0;
            if (!divides && ++i == table.size()) {
                break;
            }
            isPrime = --divisionsLeft > 0 && !divides;
        }
        if (isPrime) {
            table.push_back(candidate);
        }
        if ((isPrime && limit == 0) || divisionsLeft <= 0) {
            break;
        }
    }
    return table.back();
}

// Divides by entry after entry, the table growing one by one; {0} when the steps run out.
inline Numbers DecompPremCalc(std::uint64_t n, Numbers& table, std::int64_t steps) {
    if (static_cast<std::int64_t>(n) <= 1) {
        return {std::uint64_t{n == 1}};
    }
    Numbers factors;
    std::size_t i = 0;
    while (n != 1) {
        const std::uint64_t p = i < table.size() ? table[i] : NbresPremCalc(table, 0, steps);
        if (n % p != 0) {
            ++i;
        } else {
            factors.push_back(p);
            n /= p;
        }
        if (--steps <= 0) {
            return {0};
        }
    }
    return factors;
}

// All primes up to `end`, by the sieve of Eratosthenes.
inline Numbers Primes(std::size_t end) {
    std::vector<bool> struck(end + 1);
    Numbers primes;
    for (std::size_t n = 2; n <= end; ++n) {
        if (!struck[n]) {
            primes.push_back(n);
            for (std::uint64_t m = std::uint64_t{n} * n; m <= end; m += n) {
                struck[static_cast<std::size_t>(m)] = true;
            }
        }
    }
    return primes;
}

} // namespace tessarolyne::Reference

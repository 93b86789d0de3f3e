#pragma once

#include "primes/engine/PrimeTable.h"
#include "primes/engine/RunControl.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

namespace tessarolyne {

constexpr std::int64_t forEver = std::numeric_limits<std::int64_t>::max();

// Everything a calculation needs, with nothing that ends it unless a test says so. The clock stands still
// until it has been asked `looks` times; from then on it is past every time limit.
struct RunFixture final : Clock, MemoryLimits {
    explicit RunFixture(std::int64_t looks = forEver, std::uint64_t availableBytes = std::uint64_t{4} << 30)
        : left(looks), available(availableBytes) {}
    std::int64_t Milliseconds() const override { return left-- > 0 ? 0 : 1'000'000; }
    Date Now() const override { return {}; }
    std::uint64_t AvailableBytes() const override { return available; }

    mutable std::int64_t left;
    const std::uint64_t available;
    std::atomic<bool> ArretUrg = false;
    RunControl untimed{ArretUrg, *this, *this};
    RunControl timed{ArretUrg, *this, *this, 30};
};

// Refuses memory after a number of allocations.
struct ShortMemory final : std::pmr::memory_resource {
    explicit ShortMemory(int allocations) : left(allocations) {}
    int left;

    void* do_allocate(std::size_t bytes, std::size_t alignment) override {
        if (left-- <= 0) {
            throw std::bad_alloc();
        }
        return std::pmr::new_delete_resource()->allocate(bytes, alignment);
    }
    void do_deallocate(void* place, std::size_t bytes, std::size_t alignment) override {
        std::pmr::new_delete_resource()->deallocate(place, bytes, alignment);
    }
    bool do_is_equal(const memory_resource& other) const noexcept override { return this == &other; }
};

inline bool AppendAll(PrimeTable& table, const std::vector<std::uint64_t>& values) {
    return std::all_of(
        values.begin(), values.end(), [&](std::uint64_t value) { return table.Append(value); });
}

// A table of these numbers.
struct TableOf : PrimeTable {
    TableOf(const std::vector<std::uint64_t>& values = {2, 3, 5, 7}) {
        if (!AppendAll(*this, values)) {
            throw std::bad_alloc();
        }
    }
};

inline std::vector<std::uint64_t> Entries(const PrimeTable& table) {
    std::vector<std::uint64_t> values;
    if (table.Size() > 0) {
        PrimeTable::Cursor cursor(table, 0);
        do {
            values.push_back(cursor.Value());
        } while (cursor.Next());
    }
    return values;
}

// Primes and factors in the slow obvious way.
namespace Reference {

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

// As a file edited by hand may have them.
inline const std::vector<Numbers> oddTables = {
    {2, 3, 5, 7, 1'000'003},                   // a gap
    {2, 3, 5, 7, 8},                           // even from here on
    {2, 3, 5, 7, 11, 13, 9},                   // not rising
    {2, 3, 5, 7, 3},                           // begins again below the first division
    {2, 3, 5, 7, 11, 1'000'000'007, 13, 17},   // a large one ends every division
    {2, 3, 5, 7, 121, 11, 169, 13},            // composite divisors
    {2, 3, 5, 7, 999'999'999'989},             // divisors run out
    {2, 3, 5, 7, 18'446'744'073'709'551'613U}, // wraps round
};

} // namespace Reference

} // namespace tessarolyne

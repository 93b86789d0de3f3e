#include "primes/engine/Factors.h"

#include "primes/engine/Reference.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <random>

using namespace tessarolyne;

TEST_CASE("Up to a million the primes are those of the sieve") {
    const auto primes = Reference::Primes(1'000'000);
    auto next = primes.begin();
    for (std::uint64_t n = 0; n <= primes.back(); ++n) {
        REQUIRE(IsPrime(n) == (*next == n));
        next += *next == n ? 1 : 0;
    }
}

TEST_CASE("Numbers that pass the test for some bases are told from primes") {
    // Strong pseudoprimes to the first bases (OEIS A014233), and to 2, 13 and 23.
    for (const std::uint64_t n : {2047ULL, 1373653ULL, 25326001ULL, 3215031751ULL, 2152302898747ULL,
             3474749660383ULL, 341550071728321ULL, 3825123056546413051ULL, 1122004669633ULL}) {
        CHECK_FALSE(IsPrime(n));
    }
    // And primes, some of them beside those or beside the ends of types.
    for (const std::uint64_t n : {999'999'999'989ULL, 50'685'770'143ULL, 4'294'967'291ULL, 4'294'967'311ULL,
             9'223'372'036'854'775'783ULL, 18'446'744'073'709'551'557ULL}) {
        CHECK(IsPrime(n));
    }
}

TEST_CASE("The factors are primes, rise, and make up the number") {
    std::mt19937_64 random(4);
    std::vector<std::uint64_t> numbers = {2, 4, 999'999'999'999, 999'983ULL * 999'983,
        2147483647ULL * 2147483629, std::uint64_t{1} << 62, 3'486'784'401, 521ULL * 521 * 521,
        4294967291ULL * 2147483647, 9223372036854775807ULL};
    for (int i = 0; i < 3000; ++i) {
        numbers.push_back(1 + random() % 999'999'999'999);
        numbers.push_back(1 + (random() >> (1 + random() % 62)));
    }
    for (const std::uint64_t n : numbers) {
        std::vector<std::uint64_t> factors;
        FindFactors(n, factors);
        std::uint64_t product = 1;
        for (const std::uint64_t factor : factors) {
            product *= factor;
        }
        REQUIRE(product == n);
        REQUIRE(std::is_sorted(factors.begin(), factors.end()));
        REQUIRE(std::all_of(factors.begin(), factors.end(), IsPrime));
    }
}

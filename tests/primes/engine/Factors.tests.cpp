#include "primes/engine/Factors.h"

#include "primes/RunFixture.h"

#include <doctest/doctest.h>

#include <random>

using namespace tessarolyne;
using Reference::Numbers;

namespace {

const Numbers none = {0};

Numbers Factor(std::uint64_t n, PrimeTable& table, RunControl& run) {
    Numbers factors = {99}; // what an earlier number left
    DecompPremCalc(n, table, factors, run);
    return factors;
}

} // namespace

TEST_CASE("Primes are told from all other numbers") {
    const auto primes = Reference::Primes(1'000'000);
    for (std::uint64_t n = 0; n <= primes.back(); ++n) {
        REQUIRE(IsPrime(n) == std::binary_search(primes.begin(), primes.end(), n));
    }
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
    Numbers numbers = {999'983ULL * 999'983, 2147483647ULL * 2147483629, 521ULL * 521 * 521,
        4294967291ULL * 2147483647, 9223372036854775807ULL};
    for (int i = 0; i < 3000; ++i) {
        numbers.push_back(1 + random() % 999'999'999'999);
        numbers.push_back(1 + (random() >> (1 + random() % 62)));
    }
    for (std::uint64_t n : numbers) {
        Numbers factors;
        FindFactors(n, factors);
        REQUIRE(std::is_sorted(factors.begin(), factors.end()));
        for (const std::uint64_t factor : factors) {
            REQUIRE((IsPrime(factor) && n % factor == 0));
            n /= factor;
        }
        REQUIRE(n == 1);
    }
}

TEST_CASE("Factors and the table's end are those of dividing by entry after entry") {
    std::mt19937_64 random(7);
    TableOf table;
    Numbers expectedTable = {2, 3, 5, 7};
    RunFixture run;
    for (std::uint64_t i = 0; i < 3300; ++i) {
        const std::uint64_t n = i < 3000 ? i : (1 + random() % 30'000) * (1 + random() % 3000);
        RunControl& control = i % 2 == 0 ? run.timed : run.untimed;
        REQUIRE(Factor(n, table, control) == Reference::DecompPremCalc(n, expectedTable, 1'000'000'000));
        REQUIRE(table.Back() == expectedTable.back());
    }
    CHECK(Entries(table) == expectedTable);
    CHECK(Factor(std::uint64_t{1} << 62, table, run.untimed) == Numbers(62, 2));
    CHECK(Factor(std::uint64_t{1} << 63, table, run.untimed) == none); // it has no sign as a signed number
    CHECK_FALSE(run.ArretUrg);
}

TEST_CASE("Without a time limit every number is answered, a far factor by its root") {
    // The factors, and how far the table goes; 0: wherever the budget of 4 MB ends, about which an estimate
    // alone can't tell.
    const std::pair<Numbers, std::uint64_t> rows[] = {{{999'999'999'989}, 999'983},
        {{2, 499'999'999'979}, 707'099}, {{64'000'031}, 0}, {{66'000'049}, 0}, {{68'000'077}, 0},
        {{70'000'027}, 0}, {{75'000'007}, 0}};
    for (const auto& [factors, reach] : rows) {
        TableOf table;
        RunFixture run(forEver, 8'000'000);
        CHECK(Factor(factors.back() * (factors.size() == 2 ? 2 : 1), table, run.untimed) == factors);
        CHECK((reach == 0 || table.Back() == reach));
        CHECK_FALSE(run.ArretUrg);
    }
    TableOf table;
    RunFixture tiny(forEver, 0); // not even the root
    CHECK(Factor(999'999'999'989, table, tiny.untimed) == none);
    CHECK(tiny.untimed.End() == RunEnd::OutOfMemory);
    CHECK(tiny.ArretUrg);
}

TEST_CASE("With a time limit a number adds a fixed number of entries, and goes further when it comes again") {
    TableOf table;
    RunFixture stopped;
    stopped.ArretUrg = true;
    CHECK(Factor(2, table, stopped.untimed) == none);
    CHECK(stopped.untimed.End() == RunEnd::Stopped);
    for (int again = 0; again < 3; ++again) {
        const std::int32_t size = table.Size();
        RunFixture run;
        const bool reached = again == 2;
        REQUIRE(Factor(2 * 49'999'991, table, run.timed) == (reached ? Numbers{2, 49'999'991} : none));
        REQUIRE(run.timed.End() == (reached ? RunEnd::Finished : RunEnd::OutOfTime));
        REQUIRE((reached ? table.Back() == 49'999'991 : table.Size() == size + timedRunEntries));
    }
}

TEST_CASE("A table that a file made odd is divided by as it stands") {
    for (const Numbers& odd : Reference::oddTables) {
        for (std::uint64_t n = 2; n < 400; ++n) {
            Numbers expectedTable = odd;
            const Numbers expected = Reference::DecompPremCalc(n, expectedTable, 20'000);
            TableOf table(odd);
            RunFixture run(20'000);
            REQUIRE(Factor(n, table, run.timed) == expected);
            REQUIRE((expected == none || Entries(table) == expectedTable));
        }
    }
    TableOf table({2, 3, 5, 7, 1});
    RunFixture run;
    CHECK(Factor(21, table, run.untimed) == Numbers{3, 7});
    CHECK(Factor(22, table, run.untimed) == none); // a 1 would divide for ever
    CHECK(run.ArretUrg);
}

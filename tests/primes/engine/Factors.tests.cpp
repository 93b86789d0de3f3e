#include "primes/engine/Factors.h"

#include "primes/RunFixture.h"
#include "primes/engine/PrimeGrowth.h"
#include "primes/engine/Reference.h"

#include <doctest/doctest.h>

#include <random>

using namespace tessarolyne;
using Reference::Numbers;

namespace {

constexpr std::int64_t forEver = std::numeric_limits<std::int64_t>::max();
const Numbers none = {0};

Numbers Factor(std::uint64_t n, PrimeTable& table, RunControl& run) {
    Numbers factors = {99}; // what an earlier number left
    DecompPremCalc(n, table, factors, run);
    return factors;
}

} // namespace

TEST_CASE("Factors and the table's end are those of dividing by entry after entry") {
    for (std::uint64_t n = 0; n < 3000; ++n) {
        Numbers expectedTable = {2, 3, 5, 7};
        const Numbers expected = Reference::DecompPremCalc(n, expectedTable, 1'000'000'000);
        TableOf table;
        RunFixture run;
        REQUIRE(Factor(n, table, n % 2 == 0 ? run.timed : run.untimed) == expected);
        REQUIRE(Entries(table) == expectedTable);
    }
    std::mt19937_64 random(7);
    TableOf table;
    Numbers expectedTable = {2, 3, 5, 7};
    RunFixture run;
    for (int i = 0; i < 300; ++i) {
        const std::uint64_t n = (1 + random() % 30'000) * (1 + random() % 3000);
        REQUIRE(Factor(n, table, run.untimed) == Reference::DecompPremCalc(n, expectedTable, 1'000'000'000));
        REQUIRE(table.Back() == expectedTable.back());
    }
    CHECK(Entries(table) == expectedTable);
    CHECK(Factor(std::uint64_t{1} << 62, table, run.untimed) == Numbers(62, 2));
    CHECK(Factor(std::uint64_t{1} << 63, table, run.untimed) == none); // it has no sign as a signed number
    CHECK_FALSE(run.ArretUrg);
}

TEST_CASE("Without a time limit every number is answered, a far factor by its root") {
    RunFixture run(forEver, 8'000'000);
    TableOf first;
    CHECK(Factor(999'999'999'989, first, run.untimed) == Numbers{999'999'999'989});
    CHECK(first.Back() == 999'983);
    TableOf second;
    CHECK(Factor(999'999'999'958, second, run.untimed) == Numbers{2, 499'999'999'979});
    CHECK(second.Back() == 707'099); // the last prime below the root
    // About at the budget of 4 MB, where an estimate alone can't tell.
    for (std::uint64_t near : {64'000'031U, 66'000'049U, 68'000'069U, 70'000'027U, 75'000'007U}) {
        while (!IsPrime(near)) {
            near += 2;
        }
        TableOf table;
        RunFixture budget(forEver, 8'000'000);
        CHECK(Factor(near, table, budget.untimed) == Numbers{near});
        CHECK_FALSE(budget.ArretUrg);
    }
    CHECK_FALSE(run.ArretUrg);
    TableOf third;
    RunFixture tiny(forEver, 0); // not even the root
    CHECK(Factor(999'999'999'989, third, tiny.untimed) == none);
    CHECK(tiny.untimed.End() == RunEnd::OutOfMemory);
    CHECK(tiny.ArretUrg);
}

TEST_CASE("With a time limit a number adds a fixed number of entries, and goes further when it comes again") {
    TableOf table;
    Numbers factors = none;
    for (int again = 0; again < 3; ++again) {
        const std::int32_t size = table.Size();
        RunFixture run;
        factors = Factor(2 * 49'999'991, table, run.timed);
        REQUIRE(run.ArretUrg == (again < 2));
        REQUIRE(run.timed.End() == (again < 2 ? RunEnd::OutOfTime : RunEnd::Finished));
        REQUIRE((factors != none || table.Size() == size + timedRunEntries));
    }
    CHECK(factors == Numbers{2, 49'999'991});
    CHECK(table.Back() == 49'999'991);
}

TEST_CASE("A stop leaves no factors, and what the table has gained") {
    for (std::int64_t looks = 0; looks < 40; ++looks) {
        TableOf table;
        RunFixture run(looks);
        const Numbers factors = Factor(6 * 9'999'991ULL, table, run.timed);
        CHECK(factors == (run.ArretUrg ? none : Numbers{2, 3, 9'999'991}));
        RunFixture again;
        CHECK(Factor(6 * 9'999'991ULL, table, again.untimed) == Numbers{2, 3, 9'999'991});
        CHECK(table.Back() == 9'999'991);
    }
    TableOf table;
    RunFixture run;
    run.ArretUrg = true;
    CHECK(Factor(2, table, run.untimed) == none);
    CHECK(run.untimed.End() == RunEnd::Stopped);
}

TEST_CASE("A table that a file made odd is divided by as it stands") {
    const std::vector<Numbers> tables = {{2, 3, 5, 7, 1'000'003}, {2, 3, 5, 7, 11, 13, 9},
        {2, 3, 5, 7, 121, 11, 169, 13}, {2, 3, 5, 7, 3}, {2, 3, 5, 7, 8}, {2, 3, 5, 7, 13, 11}};
    for (const Numbers& odd : tables) {
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
    CHECK(Factor(22, table, run.untimed) == none); // a 1 would divide for ever
    CHECK(run.ArretUrg);
    RunFixture other;
    CHECK(Factor(21, table, other.untimed) == Numbers{3, 7});
}

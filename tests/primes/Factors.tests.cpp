#include "primes/Factors.h"

#include "primes/Primality.h"
#include "primes/PrimeGrowth.h"
#include "primes/Reference.h"
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

void Begin(PrimeTable& table, const Numbers& values = {2, 3, 5, 7}) {
    table.Clear();
    REQUIRE(AppendAll(table, values));
}

} // namespace

TEST_CASE("Factors and the table's end are those of dividing by entry after entry") {
    for (std::uint64_t n = 0; n < 3000; ++n) {
        Numbers expectedTable = {2, 3, 5, 7};
        const Numbers expected = Reference::DecompPremCalc(n, expectedTable, 1'000'000'000);
        PrimeTable table;
        Begin(table);
        RunFixture run;
        REQUIRE(Factor(n, table, n % 2 == 0 ? run.timed : run.untimed) == expected);
        REQUIRE(Entries(table) == expectedTable);
    }
    std::mt19937_64 random(7);
    PrimeTable table;
    Begin(table);
    Numbers expectedTable = {2, 3, 5, 7};
    for (int i = 0; i < 300; ++i) {
        const std::uint64_t n = (1 + random() % 30'000) * (1 + random() % 3000);
        RunFixture run;
        REQUIRE(Factor(n, table, run.untimed) == Reference::DecompPremCalc(n, expectedTable, 1'000'000'000));
        REQUIRE(table.Back() == expectedTable.back());
    }
    CHECK(Entries(table) == expectedTable);
}

TEST_CASE("1 is its own result; 0 and what has no sign as a signed number have none") {
    PrimeTable table;
    Begin(table);
    RunFixture run;
    CHECK(Factor(1, table, run.untimed) == Numbers{1});
    CHECK(Factor(0, table, run.untimed) == none);
    CHECK(Factor(std::uint64_t{1} << 63, table, run.untimed) == none);
    CHECK(Factor(std::uint64_t{1} << 62, table, run.untimed) == Numbers(62, 2));
    CHECK_FALSE(run.ArretUrg);
}

TEST_CASE("A loaded table is compared as far as a number needs it") {
    const auto primes = Reference::Primes(2'000'000);
    PrimeTable table;
    Begin(table, primes);
    RunFixture run;
    CHECK(Factor(2 * 97, table, run.timed) == Numbers{2, 97});
    CHECK(table.ConsecutiveBack() < 2'000'000);
    CHECK(Factor(1'999'993, table, run.timed) == Numbers{1'999'993});
    CHECK(Factor(2'000'003, table, run.timed) == Numbers{2'000'003});
    CHECK(table.Back() == 2'000'003);
}

TEST_CASE("Without a time limit every number is answered, a far factor by its root") {
    PrimeTable table;
    RunFixture run(std::numeric_limits<std::int64_t>::max(), 8'000'000);
    Begin(table);
    CHECK(Factor(999'999'999'989, table, run.untimed) == Numbers{999'999'999'989});
    CHECK(table.Back() == 999'983);
    Begin(table);
    CHECK(Factor(999'999'999'958, table, run.untimed) == Numbers{2, 499'999'999'979});
    CHECK(table.Back() <= FloorSquareRoot(499'999'999'979));
    CHECK(table.Back() + 100 > FloorSquareRoot(499'999'999'979));
    // About at the budget of 4 MB, where an estimate alone can't tell.
    for (const std::uint64_t prime : {std::uint64_t{64'000'031}, std::uint64_t{66'000'049},
             std::uint64_t{68'000'069}, std::uint64_t{70'000'027}, std::uint64_t{75'000'007}}) {
        std::uint64_t near = prime;
        while (!IsPrime(near)) {
            near += 2;
        }
        Begin(table);
        RunFixture budget(std::numeric_limits<std::int64_t>::max(), 8'000'000);
        CHECK(Factor(near, table, budget.untimed) == Numbers{near});
        CHECK_FALSE(budget.ArretUrg);
    }
    CHECK_FALSE(run.ArretUrg);
    Begin(table);
    RunFixture tiny(std::numeric_limits<std::int64_t>::max(), 0); // not even the root
    CHECK(Factor(999'999'999'989, table, tiny.untimed) == none);
    CHECK(tiny.untimed.End() == RunEnd::OutOfMemory);
    CHECK(tiny.ArretUrg);
}

TEST_CASE("With a time limit a number adds a fixed number of entries, and goes further when it comes again") {
    PrimeTable table;
    Begin(table);
    int tries = 0;
    for (std::int32_t size = table.Size();; size = table.Size()) {
        RunFixture run;
        const Numbers factors = Factor(2 * 49'999'991, table, run.timed);
        ++tries;
        if (factors != none) {
            CHECK(factors == Numbers{2, 49'999'991});
            CHECK_FALSE(run.ArretUrg);
            break;
        }
        REQUIRE(run.ArretUrg);
        REQUIRE(run.timed.End() == RunEnd::OutOfTime);
        REQUIRE(table.Size() == size + timedRunEntries);
    }
    CHECK(tries == 3);
    CHECK(table.Back() == 49'999'991);
}

TEST_CASE("A stop leaves no factors, and what the table has gained") {
    for (std::int64_t looks = 0; looks < 40; ++looks) {
        PrimeTable table;
        Begin(table);
        RunFixture run(looks);
        const Numbers factors = Factor(6 * 9'999'991ULL, table, run.timed);
        CHECK((factors == none) == run.ArretUrg);
        CHECK((factors == none || factors == Numbers{2, 3, 9'999'991}));
        RunFixture again;
        CHECK(Factor(6 * 9'999'991ULL, table, again.untimed) == Numbers{2, 3, 9'999'991});
        CHECK(table.Back() == 9'999'991);
    }
    PrimeTable table;
    Begin(table);
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
            PrimeTable table;
            Begin(table, odd);
            RunFixture run(20'000);
            REQUIRE(Factor(n, table, run.timed) == expected);
            if (expected != none) {
                REQUIRE(Entries(table) == expectedTable);
            }
        }
    }
    PrimeTable table;
    Begin(table, {2, 3, 5, 7, 1});
    RunFixture run;
    CHECK(Factor(22, table, run.untimed) == none); // a 1 would divide for ever
    CHECK(run.ArretUrg);
    RunFixture other;
    CHECK(Factor(21, table, other.untimed) == Numbers{3, 7});
}

#include "primes/engine/PrimeGrowth.h"

#include "primes/RunFixture.h"
#include "primes/engine/Factors.h"

#include <doctest/doctest.h>

#include <random>

using namespace tessarolyne;
using Reference::Numbers;

namespace {

const Numbers firstFour = {2, 3, 5, 7};

// Grows a table of `start` to each limit in turn, by the routine and by the slow way.
void CheckAgainstReference(const Numbers& start, const Numbers& limits) {
    Numbers expected = start;
    TableOf table(start);
    for (const std::uint64_t limit : limits) {
        RunFixture run;
        std::int64_t divisions = forEver;
        const std::uint64_t last = Reference::NbresPremCalc(expected, limit, divisions);
        REQUIRE(NbresPremCalc(table, limit, run.untimed) == last);
        REQUIRE(run.untimed.End() == RunEnd::Finished);
    }
    CHECK(Entries(table) == expected);
}

// A sequence in which stretches like a table of primes alternate with everything a file may hold.
std::vector<std::uint64_t> AnySequence(std::mt19937_64& random, std::size_t size) {
    std::vector<std::uint64_t> values(size);
    std::uint64_t value = random() % 100;
    std::uint64_t kind = 4;
    for (std::uint64_t& entry : values) {
        kind = random() % 10'000 == 0 ? random() % 12 : kind;
        const std::uint64_t next[] = {random(), random() % 2,
            value + random() % 4,                    // repeated ones and odd gaps
            (value | 1) + 500 + 2 * (random() % 10), // round the widest gap that fits a byte
            (value | 1) + 2 * (random() % 256)};
        entry = value = next[std::min<std::uint64_t>(kind, 4)];
    }
    return values;
}

void CheckSame(const PrimeTable& table, const std::vector<std::uint64_t>& values) {
    REQUIRE(table.Size() == static_cast<std::int32_t>(values.size()));
    CHECK(table.Back() == (values.empty() ? 0 : values.back()));
    CHECK(Entries(table) == values);
    for (std::size_t rank = 0; rank < values.size(); ++rank) {
        REQUIRE(table[static_cast<std::int32_t>(rank)] == values[rank]);
    }
}

} // namespace

TEST_CASE("Growth to any limit, at once or in portions, gives the entries that division gives") {
    for (std::uint64_t limit = 0; limit < 3000; ++limit) {
        CheckAgainstReference(firstFour, {limit});
    }
    std::mt19937_64 random(6);
    for (const std::uint64_t largestPortion : {1'000U, 5'000U, 90'000U}) {
        Numbers limits(300, 0);
        for (std::uint64_t at = 0; at < 200'000; at += random() % largestPortion) {
            limits.insert(limits.end(), {at, 0});
        }
        CheckAgainstReference(firstFour, limits);
    }
    for (const Numbers& odd : Reference::oddTables) {
        CheckAgainstReference(odd, {0, 0, 0});
        if (odd.back() < odd.back() + 200) { // behind the largest number no limit would ever be reached
            CheckAgainstReference(odd, {0, odd.back() + 1, odd.back() + 200, 0, 7, 50});
        }
    }
}

TEST_CASE("The sieve misses and adds nothing at the edges of bytes, windows, blocks and squares") {
    const auto primes = Reference::Primes(4'000'000);
    Numbers limits = {1'999'993, 1'999'993 + 30 * 224 * 1024};
    for (const std::uint64_t window : {1U, 2U, 3U}) {
        limits.push_back(30 * 28 * 1024 * window); // from the start, and below from behind a run of its own
    }
    for (const std::uint64_t prime : {7U, 163U, 167U, 251U, 257U, 911U, 1409U, 1999U}) {
        limits.push_back(prime * prime);
    }
    for (const std::uint64_t limit : limits) {
        for (std::uint64_t near = limit - 32; near <= limit + 32 && near < 4'000'000; near += 3) {
            TableOf table;
            RunFixture run;
            NbresPremCalc(table, near, run.untimed);
            const auto count = std::upper_bound(primes.begin(), primes.end(), near | 1) - primes.begin();
            REQUIRE(table.Size() == count);
            REQUIRE(table.Back() == primes[static_cast<std::size_t>(count - 1)]);
            NbresPremCalc(table, 3'999'999, run.untimed);
            REQUIRE(table.Size() == static_cast<std::int32_t>(primes.size()));
        }
    }
}

TEST_CASE("Round 2^32, and where the ranks end, the primes are right") {
    for (const std::uint64_t around : {std::uint64_t{1} << 32, std::uint64_t{50'685'770'143}}) {
        TableOf table;
        RunFixture run;
        NbresPremCalc(table, 230'000, run.untimed);
        // The primes in between are left out: the sieve needs those below the root alone.
        std::uint64_t prime = around - 400'000;
        while (!IsPrime(prime)) {
            --prime;
        }
        Numbers expected = Entries(table);
        REQUIRE(table.Append(prime));
        table.NoteConsecutive(table.Size());
        CHECK(GrowConsecutive(table, around + 400'001, PrimeTable::maxSize, run.untimed) == RunEnd::Finished);
        for (; prime <= around + 400'001; ++prime) {
            if (IsPrime(prime)) {
                expected.push_back(prime);
            }
        }
        CHECK(Entries(table) == expected);
    }
}

TEST_CASE("One wrong entry is found wherever it is, and those before it stay known") {
    const auto primes = Reference::Primes(1'300'000);
    RunFixture run;
    for (const std::size_t rank : {4U, 5U, 52U, 53U, 54U, 55U, 255U, 256U, 257U, 65535U, 65536U, 99'000U}) {
        Numbers odd = primes;
        odd[rank] += 2;
        TableOf table(odd);
        CHECK((VerifyPrimes(table, forEver, run.untimed) && table.IsIrregular()));
        CHECK(table.ConsecutiveCount() == static_cast<std::int32_t>(rank));
        CHECK(table.ConsecutiveBack() == primes[rank - 1]);
    }
    TableOf table(primes);
    CHECK(VerifyPrimes(table, 500'000, run.untimed));
    CHECK_FALSE(table.IsConsecutive());
    CHECK(table.ConsecutiveBack() >= 500'000);
    RunFixture stopped(1);
    CHECK_FALSE(VerifyPrimes(table, forEver, stopped.timed));
    CHECK(VerifyPrimes(table, forEver, run.untimed));
    CHECK(table.IsConsecutive());
}

TEST_CASE("A stop at any look leaves a valid shorter table, from which the next run goes on") {
    std::vector<Numbers> tables = Reference::oddTables;
    tables.push_back(firstFour);
    for (const Numbers& start : tables) {
        const std::uint64_t limit = std::min<std::uint64_t>(start.back() + 3000, std::uint64_t{1} << 40);
        Numbers expected = start;
        std::int64_t divisions = forEver;
        Reference::NbresPremCalc(expected, limit, divisions);
        Numbers undivided = start;
        Reference::NbresPremCalc(undivided, limit, divisions = 0);
        for (std::int64_t looks = 0; looks < 300; looks = looks * 4 / 3 + 1) {
            TableOf table(start);
            RunFixture run(looks);
            const std::uint64_t last = NbresPremCalc(table, limit, run.timed);
            CHECK(last == table.Back());
            CHECK((run.timed.End() == RunEnd::OutOfTime) == run.ArretUrg);
            const auto entries = Entries(table);
            REQUIRE(entries.size() <= expected.size());
            CHECK((looks > 0 || entries == undivided));
            CHECK(std::equal(entries.begin(), entries.end(), expected.begin()));
            RunFixture again;
            NbresPremCalc(table, limit, again.untimed);
            CHECK(Entries(table) == expected);
        }
    }
}

TEST_CASE("The end of the memory, or of the table, ends a run like a stop") {
    PrimeTable small(std::pmr::get_default_resource(), 100);
    REQUIRE(AppendAll(small, firstFour));
    for (const std::uint64_t limit : {1'000'000U, 547U, 0U}) {
        RunFixture full;
        CHECK(NbresPremCalc(small, limit, full.untimed) == 541);
        CHECK(full.untimed.End() == RunEnd::TableFull);
        CHECK(full.ArretUrg);
    }
    const auto primes = Reference::Primes(3'000'000);
    TableOf table;
    RunFixture tight(forEver, 200'000); // half of it is one chunk beside the one that is begun
    NbresPremCalc(table, 3'000'000, tight.untimed);
    CHECK(tight.untimed.End() == RunEnd::OutOfMemory);
    CHECK(tight.ArretUrg);
    CHECK(Entries(table) == Numbers(primes.begin(), primes.begin() + 2 * 65536));

    for (int allocations = 4; allocations < 8; ++allocations) {
        ShortMemory memory(allocations);
        PrimeTable shortTable(&memory);
        REQUIRE(AppendAll(shortTable, firstFour));
        RunFixture run;
        NbresPremCalc(shortTable, 30'000'000, run.untimed);
        CHECK(run.untimed.End() == RunEnd::OutOfMemory);
        CHECK(shortTable.Size() % 65536 == 0);
        memory.left = 100;
        RunFixture again;
        NbresPremCalc(shortTable, 2'999'999, again.untimed);
        CHECK(shortTable[static_cast<std::int32_t>(primes.size() - 1)] == primes.back());
    }
}

TEST_CASE("A table gives back any sequence, whatever append lacks memory, also after it was emptied") {
    std::mt19937_64 random(1);
    ShortMemory memory(0);
    PrimeTable table(&memory);
    for (const std::size_t size : {0U, 1U, 255U, 256U, 257U, 5000U, 65535U, 65536U, 65537U, 500'000U}) {
        const auto values = AnySequence(random, size);
        for (int allocations = 0; !AppendAll(table, {values.begin() + table.Size(), values.end()});
             memory.left = ++allocations % 3) {
            CheckSame(table, {values.begin(), values.begin() + table.Size()});
        }
        CheckSame(table, values);
        table.Clear();
        CHECK(table.Bytes() == 0);
    }
}

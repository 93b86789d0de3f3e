#include "primes/engine/PrimeTable.h"

#include "primes/RunFixture.h"
#include "primes/engine/Reference.h"

#include <doctest/doctest.h>

#include <random>

using namespace tessarolyne;

namespace {

// A sequence in which stretches like a table of primes alternate with everything a file may hold.
std::vector<std::uint64_t> AnySequence(std::mt19937_64& random, std::size_t size) {
    std::vector<std::uint64_t> values;
    std::uint64_t value = random() % 100;
    while (values.size() < size) {
        const std::uint64_t kind = random() % 8;
        for (std::uint64_t left = random() % 700; left > 0 && values.size() < size; --left) {
            const std::uint64_t next[] = {random(), random() % 2,
                value + random() % 4,              // repeated ones and odd gaps
                value + 500 + 2 * (random() % 10), // round the widest gap that fits a byte
                value + 2 * (random() % 256)};
            value = next[std::min<std::uint64_t>(kind, 4)];
            values.push_back(value);
        }
    }
    return values;
}

void CheckSame(const PrimeTable& table, const std::vector<std::uint64_t>& values) {
    REQUIRE(table.Size() == static_cast<std::int32_t>(values.size()));
    REQUIRE(table.UpperBound() == table.Size() - 1);
    CHECK(table.Back() == (values.empty() ? 0 : values.back()));
    CHECK(Entries(table) == values);
    for (std::size_t rank = 0; rank < values.size(); ++rank) {
        REQUIRE(table[static_cast<std::int32_t>(rank)] == values[rank]);
    }
}

} // namespace

TEST_CASE("A table gives back any sequence, by rank and in passing, also after it was emptied") {
    std::mt19937_64 random(1);
    PrimeTable table;
    for (const std::size_t size : {0U, 1U, 255U, 256U, 257U, 5000U, 65535U, 65536U, 65537U, 150000U}) {
        const auto values = AnySequence(random, size);
        REQUIRE(AppendAll(table, values));
        CheckSame(table, values);
        table.Clear();
        CHECK(table.Bytes() == 0);
    }
}

TEST_CASE("Without memory an append says so and leaves what stands") {
    std::mt19937_64 random(3);
    const auto values = AnySequence(random, 140'000);
    bool reachedTheEnd = false;
    for (int allocations = 0; !reachedTheEnd; allocations = allocations * 3 / 2 + 1) {
        ShortMemory memory(allocations);
        PrimeTable table(&memory);
        reachedTheEnd = AppendAll(table, values);
        CheckSame(table, {values.begin(), values.begin() + table.Size()});
        memory.left = 1'000'000;
        CHECK(AppendAll(table, {values.begin() + table.Size(), values.end()}));
        CheckSame(table, values);
    }
}

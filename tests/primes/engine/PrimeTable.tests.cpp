#include "primes/engine/PrimeTable.h"

#include "primes/RunFixture.h"

#include <doctest/doctest.h>

#include <random>

using namespace tessarolyne;

namespace {

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

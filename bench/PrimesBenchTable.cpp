// The store at fifty million entries, the reach of half a second, and the way to the last rank.

#include "PrimesBench.h"

#include "primes/engine/PrimeGrowth.h"

#include <algorithm>
#include <cstdio>
#include <random>
#include <vector>

namespace tessarolyne::PrimesBench {

namespace {

constexpr std::int32_t entries = 50'000'000;

std::uint64_t SumByCursor(const PrimeTable& table) {
    PrimeTable::Cursor cursor(table, 0);
    std::uint64_t sum = 0;
    do {
        sum += cursor.Value();
    } while (cursor.Next());
    return sum;
}

void Store(const PrimeTable& table) {
    std::vector<std::uint64_t> vector;
    vector.reserve(entries);
    PrimeTable::Cursor cursor(table, 0);
    do {
        vector.push_back(cursor.Value());
    } while (cursor.Next());
    std::mt19937 random(1);
    std::vector<std::int32_t> ranks(5'000'000);
    for (std::int32_t& rank : ranks) {
        rank = static_cast<std::int32_t>(random() % static_cast<std::uint32_t>(table.Size()));
    }
    std::uint64_t sums[4] = {};
    const double walk = ProcessorSeconds([&] { sums[0] = SumByCursor(table); });
    const double vectorWalk = ProcessorSeconds([&] {
        for (const std::uint64_t value : vector) {
            sums[1] += value;
        }
    });
    const double access = ProcessorSeconds([&] {
        for (const std::int32_t rank : ranks) {
            sums[2] += table[rank];
        }
    });
    const double vectorAccess = ProcessorSeconds([&] {
        for (const std::int32_t rank : ranks) {
            sums[3] += vector[static_cast<std::size_t>(rank)];
        }
    });
    const double size = static_cast<double>(table.Size());
    std::printf("  %.3f bytes an entry (vector: 8); random access %.1f ns (vector: %.1f); in passing %.2f ns "
                "(%.2f)\n",
        static_cast<double>(table.Bytes()) / size, access * 1e9 / static_cast<double>(ranks.size()),
        vectorAccess * 1e9 / static_cast<double>(ranks.size()), walk * 1e9 / size, vectorWalk * 1e9 / size);
    if (sums[0] != sums[1] || sums[2] != sums[3]) {
        std::puts("  the table differs from the vector!");
    }
}

void Verification(const PrimeTable& table) {
    PrimeTable loaded;
    PrimeTable::Cursor cursor(table, 0);
    do {
        static_cast<void>(loaded.Append(cursor.Value()));
    } while (cursor.Next());
    RealRun run;
    const double seconds = ProcessorSeconds([&] { VerifyPrimes(loaded, ~std::uint64_t{0}, run.control); });
    std::printf("  a loaded table compared with the sieve: %.0f ms%s\n", 1e3 * seconds,
        loaded.IsConsecutive() ? "" : ", and found odd!");
}

void HalfASecond() {
    PrimeTable table;
    Begin(table);
    RealRun run;
    RunControl timed(run.ArretUrg, run.clock, run.memory, run.clock.Ticks() + 30);
    const std::uint64_t last = NbresPremCalc(table, 1'000'000'000'000, timed);
    std::printf("The largest prime reached in half a second: %llu (%d entries)\n",
        static_cast<unsigned long long>(last), table.Size());
}

bool LastRank() {
    PrimeTable table;
    Begin(table);
    RealRun run;
    const double seconds = ProcessorSeconds([&] { NbresPremCalc(table, 1'000'000'000'000, run.control); });
    std::printf("To the last rank: %d entries up to %llu in %.1f s, %.0f MB\n", table.Size(),
        static_cast<unsigned long long>(table.Back()), seconds, static_cast<double>(table.Bytes()) / 1e6);
    return Keeps("2 147 483 647 entries, the last one 50 685 770 143",
        table.Size() == PrimeTable::maxSize && table.Back() == 50'685'770'143 &&
            run.control.End() == RunEnd::TableFull);
}

} // namespace

bool Table(bool toTheLastRank) {
    std::printf("The table at %d entries, beside a vector:\n", entries);
    {
        PrimeTable table;
        Begin(table);
        RealRun run;
        NbresPremCalc(table, 1000, run.control);
        GrowConsecutive(table, ~std::uint64_t{0}, entries, run.control);
        Store(table);
        Verification(table);
    }
    HalfASecond();
    return !toTheLastRank || LastRank();
}

} // namespace tessarolyne::PrimesBench

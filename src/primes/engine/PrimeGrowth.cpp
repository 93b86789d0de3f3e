#include "primes/engine/PrimeGrowth.h"

#include "primes/engine/BlockSieve.h"
#include "primes/engine/Factors.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

namespace tessarolyne {

namespace {

// Over so short a way single tests are done before a sieve has been set up.
constexpr std::uint64_t shortWay = 2048;

// The number of `halfGaps`, counted from the table's known primes, that lead to the entries that follow them.
std::size_t CountMatches(const PrimeTable& table, std::span<const std::uint8_t> halfGaps) {
    PrimeTable::Cursor entry(table, table.ConsecutiveCount() - 1);
    std::uint64_t prime = table.ConsecutiveBack();
    std::size_t matches = 0;
    for (const std::uint8_t halfGap : halfGaps) {
        prime += 2U * std::uint64_t{halfGap};
        if (!entry.Next() || entry.Value() != prime) {
            break;
        }
        ++matches;
    }
    return matches;
}

// Compares the entries up to BlockSieve::leastStart, or to the end, one by one. Gives false when one is
// wrong.
bool VerifyBeginning(PrimeTable& table) {
    std::uint64_t prime = table.ConsecutiveBack();
    for (std::int32_t rank = table.ConsecutiveCount(); rank < table.Size() && prime < BlockSieve::leastStart;
         ++rank) {
        do {
            ++prime;
        } while (!IsPrime(prime));
        if (table[rank] != prime) {
            table.NoteIrregular();
            return false;
        }
        table.NoteConsecutive(rank + 1);
    }
    return true;
}

// Notes how far the entries agree with the primes of one more window.
void VerifyWindow(PrimeTable& table, BlockSieve& sieve) {
    sieve.DecideWindow(std::numeric_limits<std::uint64_t>::max());
    for (auto halfGaps = sieve.NextHalfGaps(); !halfGaps.empty() && !table.IsConsecutive();
         halfGaps = sieve.NextHalfGaps()) {
        const auto left = static_cast<std::size_t>(table.Size() - table.ConsecutiveCount());
        const std::size_t expected = std::min(halfGaps.size(), left);
        const std::size_t matches = CountMatches(table, halfGaps.first(expected));
        table.NoteConsecutive(table.ConsecutiveCount() + static_cast<std::int32_t>(matches));
        if (matches < expected) {
            table.NoteIrregular();
            return;
        }
    }
}

RunEnd EndForWantOfRoom(const PrimeTable& table, RunControl& run) {
    StopForWantOfRoom(table, run);
    return RunEnd::Stopped;
}

// Tests the odd numbers behind the last entry up to `end`; ends after `most` new primes.
RunEnd GrowBySingleTests(
    PrimeTable& table, std::uint64_t end, std::int32_t largestSize, std::int32_t most, RunControl& run) {
    for (std::uint64_t candidate = table.Back() + 2; candidate <= end && most > 0; candidate += 2) {
        if (run.MustStop()) {
            return RunEnd::Stopped;
        }
        if (!IsPrime(candidate)) {
            continue;
        }
        if (table.Size() >= largestSize) {
            return RunEnd::TableFull;
        }
        if (!table.AppendNextPrime(candidate)) {
            return EndForWantOfRoom(table, run);
        }
        --most;
    }
    return RunEnd::Finished;
}

// Adds the primes of the window that the sieve has decided.
RunEnd AppendWindow(PrimeTable& table, BlockSieve& sieve, std::int32_t largestSize, RunControl& run) {
    for (auto halfGaps = sieve.NextHalfGaps(); !halfGaps.empty(); halfGaps = sieve.NextHalfGaps()) {
        const auto room = static_cast<std::size_t>(largestSize - table.Size());
        const auto fitting = halfGaps.first(std::min(halfGaps.size(), room));
        if (static_cast<std::size_t>(table.AppendNextPrimes(fitting)) < fitting.size()) {
            return EndForWantOfRoom(table, run);
        }
        if (fitting.size() < halfGaps.size()) {
            return RunEnd::TableFull;
        }
    }
    return RunEnd::Finished;
}

RunEnd GrowBySieve(PrimeTable& table, std::uint64_t end, std::int32_t largestSize, RunControl& run) {
    BlockSieve sieve(table);
    while (sieve.Reached() < end) {
        if (run.MustStop()) {
            return RunEnd::Stopped;
        }
        sieve.DecideWindow(end);
        const RunEnd appended = AppendWindow(table, sieve, largestSize, run);
        if (appended != RunEnd::Finished) {
            return appended;
        }
    }
    return RunEnd::Finished;
}

std::uint64_t ExtendConsecutive(PrimeTable& table, std::uint64_t limit, RunControl& run) {
    constexpr std::uint64_t anywhere = std::numeric_limits<std::uint64_t>::max() - 1;
    const std::uint64_t lastTested = limit | 1; // the first odd number that isn't below the limit
    const std::int32_t largestSize = SizeWithinBudget(table, run);
    const RunEnd end = limit == 0 ? GrowBySingleTests(table, anywhere, largestSize, 1, run)
                                  : GrowConsecutive(table, lastTested, largestSize, run);
    if (end == RunEnd::TableFull) {
        StopForWantOfRoom(table, run);
    }
    return table.Back();
}

enum class Verdict { Prime, Composite, Stopped };

// By the entries from the second on, as long as they are not above the root: the first larger one ends the
// division, whatever follows it, and so does the end of the table.
Verdict Divide(const PrimeTable& table, std::uint64_t candidate, RunControl& run) {
    // In floating point, where a root of 2^32 can come out for the last candidates.
    const auto root = static_cast<std::uint64_t>(std::sqrt(static_cast<double>(candidate)));
    PrimeTable::Cursor divisor(table, 1);
    while (divisor.Value() <= root) {
        const bool divides = divisor.Value() != 0 && candidate % divisor.Value() == 0;
        if (!divides && !divisor.Next()) {
            return Verdict::Prime;
        }
        if (run.MustStop()) {
            return Verdict::Stopped;
        }
        if (divides) {
            return Verdict::Composite;
        }
    }
    return Verdict::Prime;
}

bool AppendWithinBudget(PrimeTable& table, std::uint64_t value, RunControl& run) {
    if (table.Size() < SizeWithinBudget(table, run) && table.Append(value)) {
        return true;
    }
    StopForWantOfRoom(table, run);
    return false;
}

// On a table that isn't one of consecutive primes: candidate by candidate, each divided by the entries. The
// table has at least three entries; what they are doesn't matter. An entry 0 divides nothing.
std::uint64_t ExtendByDivision(PrimeTable& table, std::uint64_t limit, RunControl& run) {
    std::uint64_t candidate = table.Back();
    while (limit == 0 || candidate < limit) {
        candidate += 2; // wraps round behind the largest number, where an edited file can begin
        const Verdict verdict = Divide(table, candidate, run);
        if (verdict == Verdict::Stopped) {
            break;
        }
        if (verdict == Verdict::Prime && (!AppendWithinBudget(table, candidate, run) || limit == 0)) {
            break;
        }
        if (run.MustStop()) {
            break;
        }
    }
    return table.Back();
}

// Before a candidate below 9 there is no division, and so no look at the stop flag: such a candidate, which
// only a table out of order leads to, needs no verification to be told.
bool EndsBelowFirstDivision(const PrimeTable& table) {
    return table.Back() + 2 < 9;
}

} // namespace

bool BeginTable(PrimeTable& table, RunControl& run) {
    if (table.Size() >= 2) {
        return true;
    }
    table.Clear();
    if (!table.AppendNextPrime(2) || !table.AppendNextPrime(3)) {
        StopForWantOfRoom(table, run);
        return false;
    }
    return true;
}

void StopForWantOfRoom(const PrimeTable& table, RunControl& run) {
    run.StopFor(table.Size() >= table.LargestSize() ? RunEnd::TableFull : RunEnd::OutOfMemory);
}

std::int32_t SizeWithinBudget(const PrimeTable& table, RunControl& run) {
    return std::max(table.SizeWithin(run.ByteCeiling(table.Bytes())), table.Size());
}

bool VerifyPrimes(PrimeTable& table, std::uint64_t upTo, RunControl& run) {
    const auto done = [&] {
        return table.IsConsecutive() || table.IsIrregular() || table.ConsecutiveBack() >= upTo;
    };
    if (done()) {
        return true;
    }
    if (run.MustStop()) {
        return false;
    }
    if (!VerifyBeginning(table) || done()) {
        return true;
    }
    try {
        BlockSieve sieve(table);
        while (!done()) {
            if (run.MustStop()) {
                return false;
            }
            VerifyWindow(table, sieve);
        }
        return true;
    } catch (const std::bad_alloc&) {
        run.StopFor(RunEnd::OutOfMemory);
        return false;
    }
}

RunEnd GrowConsecutive(PrimeTable& table, std::uint64_t end, std::int32_t largestSize, RunControl& run) {
    try {
        const bool isShort = table.Back() >= end || end - table.Back() < shortWay;
        const std::uint64_t singleEnd = isShort ? end : std::min(end, BlockSieve::leastStart + 2);
        const auto growth =
            GrowBySingleTests(table, singleEnd, largestSize, std::numeric_limits<std::int32_t>::max(), run);
        if (growth != RunEnd::Finished || singleEnd == end) {
            return growth;
        }
        return GrowBySieve(table, end, largestSize, run);
    } catch (const std::bad_alloc&) {
        return EndForWantOfRoom(table, run);
    }
}

std::uint64_t NbresPremCalc(PrimeTable& table, std::uint64_t limit, RunControl& run) {
    if (!BeginTable(table, run) || (limit != 0 && limit <= table.Back())) {
        return table.Back();
    }
    if (EndsBelowFirstDivision(table)) {
        return ExtendByDivision(table, limit, run);
    }
    if (!VerifyPrimes(table, std::numeric_limits<std::uint64_t>::max(), run)) {
        return table.Back();
    }
    return table.IsConsecutive() ? ExtendConsecutive(table, limit, run) : ExtendByDivision(table, limit, run);
}

} // namespace tessarolyne

#include "primes/engine/PrimeGrowth.h"

#include "primes/engine/BlockSieve.h"
#include "primes/engine/Factors.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

namespace tessarolyne {

namespace {

std::uint64_t NextPrime(std::uint64_t n) {
    do {
        ++n;
    } while (!IsPrime(n));
    return n;
}

// Compares an entry with the prime that belongs there, and steps to the next one. False where that's the end.
bool VerifyEntry(PrimeTable& table, PrimeTable::Cursor& entry, std::uint64_t prime) {
    if (entry.Value() != prime) {
        table.NoteIrregular();
        return false;
    }
    table.NoteConsecutive(entry.Rank() + 1);
    return entry.Next();
}

// The same with the primes of one more window.
void VerifyWindow(PrimeTable& table, PrimeTable::Cursor& entry, BlockSieve& sieve) {
    std::uint64_t prime = table.ConsecutiveBack();
    sieve.DecideWindow(std::numeric_limits<std::uint64_t>::max());
    for (auto halfGaps = sieve.NextHalfGaps(); !halfGaps.empty(); halfGaps = sieve.NextHalfGaps()) {
        for (const std::uint8_t halfGap : halfGaps) {
            prime += 2U * std::uint64_t{halfGap};
            if (!VerifyEntry(table, entry, prime)) {
                return;
            }
        }
    }
}

// Adds primes to a table of consecutive ones, as far as `largestSize` entries.
RunEnd AppendPrimes(
    PrimeTable& table, std::span<const std::uint8_t> halfGaps, std::int32_t largestSize, RunControl& run) {
    const auto room = static_cast<std::size_t>(largestSize - table.Size());
    const bool added = table.AppendByHalfGaps(halfGaps.first(std::min(halfGaps.size(), room)));
    table.NoteConsecutive(table.Size());
    return !added                   ? StopForWantOfRoom(table, run)
           : halfGaps.size() > room ? RunEnd::TableFull
                                    : RunEnd::Finished;
}

// Goes on one by one until the sieve can begin.
RunEnd GrowBySingleTests(PrimeTable& table, std::uint64_t end, std::int32_t largestSize, RunControl& run) {
    RunEnd growth = RunEnd::Finished;
    while (growth == RunEnd::Finished && table.Back() < BlockSieve::leastStart) {
        const std::uint64_t prime = NextPrime(table.Back());
        if (prime > end) {
            break;
        }
        const auto halfGap = static_cast<std::uint8_t>((prime - table.Back()) / 2);
        growth = AppendPrimes(table, {&halfGap, 1}, largestSize, run);
    }
    return growth;
}

RunEnd GrowBySieve(PrimeTable& table, std::uint64_t end, std::int32_t largestSize, RunControl& run) {
    BlockSieve sieve(table);
    while (sieve.Reached() < end) {
        if (run.MustStop()) {
            return RunEnd::Stopped;
        }
        sieve.DecideWindow(end);
        for (auto halfGaps = sieve.NextHalfGaps(); !halfGaps.empty(); halfGaps = sieve.NextHalfGaps()) {
            const RunEnd appended = AppendPrimes(table, halfGaps, largestSize, run);
            if (appended != RunEnd::Finished) {
                return appended;
            }
        }
    }
    return RunEnd::Finished;
}

std::uint64_t ExtendConsecutive(PrimeTable& table, std::uint64_t limit, RunControl& run) {
    // Of the odd numbers, the first that isn't below the limit.
    const std::uint64_t lastTested = limit == 0 ? NextPrime(table.Back()) : limit | 1;
    if (GrowConsecutive(table, lastTested, SizeWithinBudget(table, run), run) == RunEnd::TableFull) {
        StopForWantOfRoom(table, run);
    }
    return table.Back();
}

// By the entries from the second on, as long as they are not above the root: the first larger one ends the
// division, whatever follows it, and so does the end of the table. A stop counts as a divisor.
bool NoEntryDivides(const PrimeTable& table, std::uint64_t candidate, RunControl& run) {
    // In floating point, where a root of 2^32 can come out for the last candidates.
    const auto root = static_cast<std::uint64_t>(std::sqrt(static_cast<double>(candidate)));
    PrimeTable::Cursor divisor(table, 1);
    while (divisor.Value() <= root) {
        const bool divides = divisor.Value() != 0 && candidate % divisor.Value() == 0;
        if (!divides && !divisor.Next()) {
            return true;
        }
        if (divides || run.MustStop()) {
            return false;
        }
    }
    return true;
}

// On a table that isn't one of consecutive primes: candidate by candidate, each divided by the entries. The
// table has at least three entries; what they are doesn't matter. An entry 0 divides nothing.
std::uint64_t ExtendByDivision(PrimeTable& table, std::uint64_t limit, RunControl& run) {
    std::uint64_t candidate = table.Back();
    bool isPrime = false;
    while (limit == 0 ? !isPrime : candidate < limit) {
        candidate += 2; // wraps round behind the largest number, where an edited file can begin
        isPrime = NoEntryDivides(table, candidate, run);
        if (isPrime && (table.Size() >= SizeWithinBudget(table, run) || !table.Append(candidate))) {
            StopForWantOfRoom(table, run);
        }
        if (run.MustStop()) {
            break;
        }
    }
    return table.Back();
}

} // namespace

bool BeginTable(PrimeTable& table, RunControl& run) {
    if (table.Size() >= 2) {
        return true;
    }
    table.Clear();
    if (!table.Append(2) || !table.Append(3)) {
        StopForWantOfRoom(table, run);
        return false;
    }
    return true;
}

RunEnd StopForWantOfRoom(const PrimeTable& table, RunControl& run) {
    return run.StopFor(table.Size() >= table.LargestSize() ? RunEnd::TableFull : RunEnd::OutOfMemory);
}

std::int32_t SizeWithinBudget(const PrimeTable& table, RunControl& run) {
    return std::max(table.SizeWithin(run.ByteCeiling(table.Bytes())), table.Size());
}

bool VerifyPrimes(PrimeTable& table, std::uint64_t upTo, RunControl& run) {
    const auto isDecided = [&] {
        return table.IsConsecutive() || table.IsIrregular() || table.ConsecutiveBack() >= upTo;
    };
    if (isDecided()) {
        return true;
    }
    if (run.MustStop()) {
        return false;
    }
    PrimeTable::Cursor entry(table, table.ConsecutiveCount());
    while (table.ConsecutiveBack() < BlockSieve::leastStart &&
           VerifyEntry(table, entry, NextPrime(table.ConsecutiveBack()))) {
    }
    if (isDecided()) {
        return true;
    }
    try {
        BlockSieve sieve(table);
        while (!isDecided()) {
            if (run.MustStop()) {
                return false;
            }
            VerifyWindow(table, entry, sieve);
        }
        return true;
    } catch (const std::bad_alloc&) {
        run.StopFor(RunEnd::OutOfMemory);
        return false;
    }
}

RunEnd GrowConsecutive(PrimeTable& table, std::uint64_t end, std::int32_t largestSize, RunControl& run) {
    if (run.MustStop()) {
        return RunEnd::Stopped;
    }
    try {
        const RunEnd begun = GrowBySingleTests(table, end, largestSize, run);
        return begun != RunEnd::Finished || end <= table.Back() || table.Back() < BlockSieve::leastStart
                   ? begun
                   : GrowBySieve(table, end, largestSize, run);
    } catch (const std::bad_alloc&) {
        return StopForWantOfRoom(table, run);
    }
}

std::uint64_t NbresPremCalc(PrimeTable& table, std::uint64_t limit, RunControl& run) {
    if (!BeginTable(table, run) || (limit != 0 && limit <= table.Back())) {
        return table.Back();
    }
    // A stop before the comparison lets the division end as it always does, with a look behind the first one.
    return VerifyPrimes(table, std::numeric_limits<std::uint64_t>::max(), run) && table.IsConsecutive()
               ? ExtendConsecutive(table, limit, run)
               : ExtendByDivision(table, limit, run);
}

} // namespace tessarolyne

#include "primes/engine/Factors.h"

#include "primes/engine/Primality.h"
#include "primes/engine/PrimeGrowth.h"

#include <algorithm>
#include <span>

namespace tessarolyne {

namespace {

using Factors = std::span<const std::uint64_t>;

bool StopFor(RunControl& run, RunEnd reason) {
    run.StopFor(reason);
    return false;
}

// The largest size that the table may have at the end of a timed run.
std::int32_t TimedSize(const PrimeTable& table) {
    return table.Size() + std::min(timedRunEntries, table.LargestSize() - table.Size());
}

bool GrowInTime(PrimeTable& table, std::uint64_t largest, RunControl& run) {
    const std::int32_t withinBudget = SizeWithinBudget(table, run);
    const std::int32_t inTime = TimedSize(table);
    const RunEnd end = GrowConsecutive(table, largest, std::min(withinBudget, inTime), run);
    if (end == RunEnd::TableFull) {
        inTime <= withinBudget ? run.StopFor(RunEnd::OutOfTime) : StopForWantOfRoom(table, run);
        return false;
    }
    return end == RunEnd::Finished;
}

// How far the table must reach for `factors` to be certain when it can't hold the last of them.
std::uint64_t LeastReach(Factors factors) {
    const std::uint64_t root = FloorSquareRoot(factors.back());
    return factors.size() < 2 ? root : std::max(root, factors[factors.size() - 2]);
}

bool GrowAsFarAsNeeded(PrimeTable& table, Factors factors, RunControl& run) {
    const std::uint64_t largest = factors.back();
    const std::uint64_t leastReach = LeastReach(factors);
    const std::int32_t withinBudget = SizeWithinBudget(table, run);
    const bool outOfReach = LeastPrimeCount(largest) > static_cast<double>(withinBudget);
    const std::uint64_t goal = outOfReach ? leastReach : largest;
    run.Aim(goal);
    const RunEnd end = GrowConsecutive(table, goal, withinBudget, run);
    // The estimate takes some numbers for reachable that are not; the full table has passed the root by then.
    if (end == RunEnd::TableFull && table.Back() < leastReach) {
        StopForWantOfRoom(table, run);
        return false;
    }
    return end != RunEnd::Stopped;
}

// Divides what the known primes leave of a number by the entries that follow them, and by new ones, until
// nothing is left.
class IrregularTableScan {
public:
    IrregularTableScan(PrimeTable& table, std::vector<std::uint64_t>& result, RunControl& run)
        : table_(table), result_(result), run_(run), largestSize_(TimedSize(table)) {}

    bool Run(Factors factors) {
        for (const std::uint64_t factor : factors) {
            if (factor <= table_.ConsecutiveBack()) {
                result_.push_back(factor);
            } else {
                rest_ *= factor;
            }
        }
        return ScanEntries() && ScanNewEntries();
    }

private:
    // The clock is slow beside a division, so the entries in between go without it.
    static constexpr std::int32_t entriesPerLook = 64;

    bool ScanEntries() {
        const std::int32_t first = std::min(table_.ConsecutiveCount(), table_.UpperBound());
        PrimeTable::Cursor entry(table_, first);
        do {
            if (entry.Rank() % entriesPerLook == 0 && run_.MustStop()) {
                return false;
            }
            if (!DivideOut(entry.Value())) {
                return false;
            }
        } while (rest_ != 1 && entry.Next());
        return true;
    }

    bool ScanNewEntries() {
        while (rest_ != 1) {
            if (run_.IsTimed() && table_.Size() >= largestSize_) {
                return StopFor(run_, RunEnd::OutOfTime);
            }
            const std::uint64_t entry = NbresPremCalc(table_, 0, run_);
            if (run_.MustStop() || !DivideOut(entry)) {
                return false;
            }
        }
        return true;
    }

    // A 1 would divide for ever, so it ends the run as the user would have to.
    bool DivideOut(std::uint64_t entry) {
        if (entry == 1 && rest_ != 1) {
            return StopFor(run_, RunEnd::Stopped);
        }
        while (entry > 1 && rest_ % entry == 0) {
            result_.push_back(entry);
            rest_ /= entry;
        }
        return true;
    }

    PrimeTable& table_;
    std::vector<std::uint64_t>& result_;
    RunControl& run_;
    std::int32_t largestSize_; // of a timed run
    std::uint64_t rest_ = 1;
};

bool Factorise(std::uint64_t n, PrimeTable& table, std::vector<std::uint64_t>& result, RunControl& run) {
    const PrimeFactors primes(n);
    const Factors factors = primes.All();
    const std::uint64_t largest = factors.back();
    if (!BeginTable(table, run) || !VerifyPrimes(table, largest, run)) {
        return false;
    }
    if (table.ConsecutiveBack() < largest) {
        run.Aim(largest);
        if (!table.IsConsecutive()) {
            return IrregularTableScan(table, result, run).Run(factors);
        }
        if (!(run.IsTimed() ? GrowInTime(table, largest, run) : GrowAsFarAsNeeded(table, factors, run))) {
            return false;
        }
    }
    result.assign(factors.begin(), factors.end());
    return true;
}

} // namespace

void DecompPremCalc(
    std::uint64_t n, PrimeTable& table, std::vector<std::uint64_t>& Nbre_Decompose, RunControl& run) {
    constexpr std::uint64_t firstRefused = std::uint64_t{1} << 63;
    constexpr std::size_t mostFactors = 64; // so that the single entry below never needs memory
    Nbre_Decompose.clear();
    Nbre_Decompose.reserve(mostFactors);
    if (n <= 1 || n >= firstRefused) {
        Nbre_Decompose.push_back(n == 1 ? 1 : 0);
        return;
    }
    if (run.MustStop() || !Factorise(n, table, Nbre_Decompose, run) || run.MustStop()) {
        Nbre_Decompose.assign(1, 0);
    }
}

} // namespace tessarolyne

#include "primes/engine/TrialDivision.h"

#include "primes/engine/PrimeGrowth.h"

#include <cmath>

namespace tessarolyne {

namespace {

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

} // namespace

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

} // namespace tessarolyne

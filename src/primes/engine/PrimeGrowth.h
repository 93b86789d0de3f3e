#pragma once

#include "primes/engine/PrimeTable.h"
#include "primes/engine/RunControl.h"

#include <cstdint>

namespace tessarolyne {

// Extends a table that begins with 2, 3, 5, 7 and gives its last entry. `limit` 0 finds one more prime; any
// other limit goes on until the last number tested, in steps of 2 from the last entry, is at least `limit`.
//
// On a table of consecutive primes this is a sieve. On any other, as a file edited by hand may give it, every
// second number from the last entry on is divided by the entries from the second on up to its square root,
// and counts as prime when none divides it. Which of the two it is, the routine finds out itself.
//
// A stop (RunControl) leaves a shorter table of the same kind, and run.End() tells the reason: the flag, the
// time, or the memory, which may also be the table's greatest size.
std::uint64_t NbresPremCalc(PrimeTable& table, std::uint64_t limit, RunControl& run);

// Gives a table that is empty, as after a load that failed for want of memory, the beginning from which it
// can grow; one with a beginning stays as it is. False when there is no memory for it, which stops the run.
bool BeginTable(PrimeTable& table, RunControl& run);

// Compares the table's entries with the primes until those up to `upTo` are known to be the first primes, or
// all entries are, or one is found not to be; PrimeTable tells which. False when the run has to stop before.
// Anything that depends on the answer calls this itself; a caller that has just loaded a table may do it
// ahead, at some 3 ns an entry.
bool VerifyPrimes(PrimeTable& table, std::uint64_t upTo, RunControl& run);

// Extends a table that IsConsecutive() by all primes up to `end`, as far as `largestSize` entries: TableFull
// means that there are more, and says nothing to `run`, as it may be no reason to end.
RunEnd GrowConsecutive(PrimeTable& table, std::uint64_t end, std::int32_t largestSize, RunControl& run);

// Stops a run for which the table has no more room, for that of the two reasons that holds: its greatest size
// or the memory. Gives RunEnd::Stopped.
RunEnd StopForWantOfRoom(const PrimeTable& table, RunControl& run);

// The largest size that the run's memory budget and the ranks allow the table.
std::int32_t SizeWithinBudget(const PrimeTable& table, RunControl& run);

} // namespace tessarolyne

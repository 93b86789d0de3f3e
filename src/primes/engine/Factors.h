#pragma once

#include "primes/engine/PrimeTable.h"
#include "primes/engine/RunControl.h"

#include <cstdint>
#include <vector>

namespace tessarolyne {

// Whether `n` is prime; certain for every 64-bit number, in about a microsecond.
bool IsPrime(std::uint64_t n);

// Adds the prime factors of `n`, which is above 0, in rising order to `factors`, which is empty.
void FindFactors(std::uint64_t n, std::vector<std::uint64_t>& factors);

// How many entries a calculation with a time limit adds to the table at most: some hundredths of a second of
// work and a megabyte.
inline constexpr std::int32_t timedRunEntries = 1 << 20;

// Fills `Nbre_Decompose` with the prime factors of `n` in rising order, each as often as it divides; with the
// single entry 1 for 1, and with the single entry 0 where there is no result: for 0, for numbers from 2^63
// on, and whenever the run was stopped, for whatever reason run.End() gives; the stop flag is then raised.
//
// The table is extended as far as the largest factor and ends exactly on it. A run with a time limit adds
// timedRunEntries at most and then ends as if its time were spent. Without one, a largest factor that no
// table within the memory budget can reach takes the table only to its square root, which is enough to tell
// that it is prime.
//
// On a table that isn't one of consecutive primes, `n` is divided by entry after entry, whatever they are,
// and then by the new ones that NbresPremCalc gives for such a table.
void DecompPremCalc(
    std::uint64_t n, PrimeTable& table, std::vector<std::uint64_t>& Nbre_Decompose, RunControl& run);

} // namespace tessarolyne

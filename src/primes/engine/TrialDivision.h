#pragma once

#include "primes/engine/PrimeTable.h"
#include "primes/engine/RunControl.h"

#include <cstdint>

namespace tessarolyne {

// NbresPremCalc on a table that isn't one of consecutive primes: candidate by candidate, each divided by the
// entries. The table has at least three entries; what they are doesn't matter. An entry 0 divides nothing.
std::uint64_t ExtendByDivision(PrimeTable& table, std::uint64_t limit, RunControl& run);

} // namespace tessarolyne

#pragma once

#include "machine/SystemClock.h"
#include "primes/engine/PrimeTable.h"
#include "primes/engine/RunControl.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <ctime>

// What the parts of the prime benchmark share.
namespace tessarolyne::PrimesBench {

// Seconds that `work` takes.
template <typename Work>
double Seconds(Work&& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Seconds of processor time that `work` takes, on all threads together, the system's part included: a fair
// measure of work on one thread also where other programs want the processor.
template <typename Work>
double ProcessorSeconds(Work&& work) {
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
    };
    const double start = now();
    work();
    return now() - start;
}

// The machine's own clock and memory for one calculation.
struct RealRun {
    std::atomic<bool> ArretUrg = false;
    SystemClock clock;
    SystemMemory memory;
    RunControl control{ArretUrg, clock, memory};
};

// Makes `table` the one that a first start has.
void Begin(PrimeTable& table);

// Prints whether the bar of a figure was kept, and gives `kept` back.
bool Keeps(const char* what, bool kept);

// Each prints its figures and gives false when it missed a bar.
bool Growth(bool to1e10, bool divisionTo1e8);
bool Table(bool toTheLastRank);
bool Factoring();

} // namespace tessarolyne::PrimesBench

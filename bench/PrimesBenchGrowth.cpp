// Growth beside libprimesieve on one thread, and beside division candidate by candidate.

#include "PrimesBench.h"

#include "primes/engine/PrimeGrowth.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <vector>

#include <malloc.h>
#include <primesieve.hpp>

namespace tessarolyne::PrimesBench {

namespace {

double Grow(std::uint64_t end) {
    PrimeTable table;
    Begin(table);
    RealRun run;
    return ProcessorSeconds([&] { NbresPremCalc(table, end, run.control); });
}

double Generate(std::uint64_t end) {
    std::vector<std::uint64_t> primes;
    return ProcessorSeconds([&] { primesieve::generate_primes(end, &primes); });
}

// The best of several runs.
struct Times {
    double fresh = std::numeric_limits<double>::infinity();   // with memory that the system still has to give
    double touched = std::numeric_limits<double>::infinity(); // with memory that the process has used before
};

template <typename Run>
void Take(Times& times, Run run) {
    malloc_trim(0);
    times.fresh = std::min(times.fresh, run());
    times.touched = std::min(times.touched, run());
}

struct Comparison {
    Times ours;
    Times generate;
    double count = std::numeric_limits<double>::infinity();
};

// Ours and the peer's runs alternate, so that all meet the same disturbances.
Comparison Compare(std::uint64_t end, int repetitions) {
    Comparison times;
    for (int i = 0; i < repetitions; ++i) {
        Take(times.ours, [&] { return Grow(end); });
        Take(times.generate, [&] { return Generate(end); });
        times.count = std::min(times.count, ProcessorSeconds([&] { primesieve::count_primes(0, end); }));
    }
    return times;
}

// The peer of old: each odd number divided by the table up to its root.
double Divide(std::uint64_t end) {
    std::vector<std::uint64_t> table = {2, 3, 5, 7};
    return ProcessorSeconds([&] {
        for (std::uint64_t candidate = 9; candidate <= end; candidate += 2) {
            const auto root = static_cast<std::uint64_t>(std::sqrt(static_cast<double>(candidate)));
            std::size_t i = 1;
            while (table[i] <= root && candidate % table[i] != 0) {
                ++i;
            }
            if (table[i] > root) {
                table.push_back(candidate);
            }
        }
    });
}

bool CompareWithDivision(bool to1e8, double oursTo1e7, double oursTo1e8) {
    const double to1e7 = Divide(10'000'000);
    std::printf("  to 1e7 by division: %.2f s, %.0f times ours\n", to1e7, to1e7 / oursTo1e7);
    if (to1e8) {
        const double seconds = Divide(100'000'000);
        std::printf("  to 1e8 by division: %.2f s, %.0f times ours\n", seconds, seconds / oursTo1e8);
        return Keeps("to 1e8 at least 200 times faster than division", seconds >= 200 * oursTo1e8);
    }
    // Ten times as many numbers, each divided at least as often, so ten times is an understatement.
    std::printf("  to 1e8 by division: not measured; at least ten times 1e7, %.0f times ours\n",
        10 * to1e7 / oursTo1e8);
    return Keeps("to 1e8 at least 200 times faster than division (from the figure to 1e7)",
        10 * to1e7 >= 200 * oursTo1e8);
}

} // namespace

bool Growth(bool to1e10, bool divisionTo1e8) {
    primesieve::set_num_threads(1);
    std::puts(
        "Growth from 2, 3, 5, 7, beside libprimesieve on one thread: generate_primes into a vector of 64-bit "
        "numbers, and count_primes.\n"
        "Milliseconds of processor time, the best of several runs; new: memory that the system still has to "
        "give, touched: memory used before.");
    bool kept = true;
    double oursTo1e7 = 0;
    double oursTo1e8 = 0;
    for (const std::uint64_t end : {10'000'000ULL, 100'000'000ULL, 1'000'000'000ULL, 10'000'000'000ULL}) {
        if (end == 10'000'000'000 && !to1e10) {
            continue;
        }
        const Comparison times = Compare(end, end > 1'000'000'000 ? 1 : end == 1'000'000'000 ? 7 : 15);
        const double ours = times.ours.touched;
        std::printf("  to %.0e: ours touched %.2f, new %.2f; generate touched %.2f, new %.2f; count %.2f\n",
            static_cast<double>(end), 1e3 * ours, 1e3 * times.ours.fresh, 1e3 * times.generate.touched,
            1e3 * times.generate.fresh, 1e3 * times.count);
        std::printf(
            "    ours touched: %.2f of generate into a new vector, %.2f of it into a touched one, %.2f of "
            "count; ours new: %.2f of generate into a new vector\n",
            ours / times.generate.fresh, ours / times.generate.touched, ours / times.count,
            times.ours.fresh / times.generate.fresh);
        if (end == 10'000'000) {
            oursTo1e7 = ours;
        } else if (end == 100'000'000) {
            oursTo1e8 = ours;
        } else if (end == 1'000'000'000) {
            kept = Keeps("to 1e9, memory touched, in at most 0.4 of generate_primes into a new vector",
                       ours <= 0.4 * times.generate.fresh) &&
                   kept;
        }
    }
    return CompareWithDivision(divisionTo1e8, oursTo1e7, oursTo1e8) && kept;
}

} // namespace tessarolyne::PrimesBench

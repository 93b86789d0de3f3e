// Growth beside libprimesieve on one thread, and beside division candidate by candidate.

#include "PrimesBench.h"

#include "primes/PrimeGrowth.h"

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

struct Times {
    double fresh = 0; // the first run, with memory that the system still has to give
    double touched = std::numeric_limits<double>::infinity(); // the best of the others
    void Take(double seconds, bool isFirst) {
        if (isFirst) {
            fresh = seconds;
        } else {
            touched = std::min(touched, seconds);
        }
    }
};

// Ours and the peer's runs alternate, so that both meet the same disturbances.
void Compare(std::uint64_t end, int repetitions, Times& ours, Times& generate, double& count) {
    malloc_trim(0);
    count = std::numeric_limits<double>::infinity();
    for (int i = 0; i <= repetitions; ++i) {
        ours.Take(Grow(end), i == 0);
        generate.Take(Generate(end), i == 0);
        count = std::min(count, ProcessorSeconds([&] { primesieve::count_primes(0, end); }));
    }
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
        "Growth from 2, 3, 5, 7, beside libprimesieve on one thread: generate_primes into a vector; count.\n"
        "Milliseconds of processor time; touched: the best of several runs on memory used before; fresh: the "
        "first run.");
    bool kept = true;
    double oursTo1e7 = 0;
    double oursTo1e8 = 0;
    for (const std::uint64_t end : {10'000'000ULL, 100'000'000ULL, 1'000'000'000ULL, 10'000'000'000ULL}) {
        if (end == 10'000'000'000 && !to1e10) {
            continue;
        }
        Times ours;
        Times generate;
        double count = 0;
        Compare(end, end > 1'000'000'000 ? 1 : end == 1'000'000'000 ? 9 : 15, ours, generate, count);
        std::printf("  to %.0e: touched: ours %.2f, generate %.2f (ratio %.2f), count %.2f (ratio %.2f); "
                    "fresh: ours %.2f, generate %.2f (ratio %.2f)\n",
            static_cast<double>(end), 1e3 * ours.touched, 1e3 * generate.touched,
            ours.touched / generate.touched, 1e3 * count, ours.touched / count, 1e3 * ours.fresh,
            1e3 * generate.fresh, ours.fresh / generate.fresh);
        if (end == 10'000'000) {
            oursTo1e7 = ours.touched;
        } else if (end == 100'000'000) {
            oursTo1e8 = ours.touched;
        } else if (end == 1'000'000'000) {
            kept = Keeps("to 1e9 in at most 0.4 of generate_primes, memory touched",
                       ours.touched <= 0.4 * generate.touched) &&
                   kept;
        }
    }
    return CompareWithDivision(divisionTo1e8, oursTo1e7, oursTo1e8) && kept;
}

} // namespace tessarolyne::PrimesBench

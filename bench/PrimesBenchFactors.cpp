// A thousand random numbers of twelve digits beside the factor of coreutils.

#include "PrimesBench.h"

#include "primes/engine/Factors.h"
#include "primes/engine/PrimeGrowth.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <unistd.h>

namespace tessarolyne::PrimesBench {

namespace {

namespace fs = std::filesystem;

constexpr int numbersOnList = 1000;
constexpr int copies = 20; // of the list, so that the peer's start-up doesn't drown what is measured

std::vector<std::uint64_t> RandomNumbers() {
    std::mt19937_64 random(12);
    std::vector<std::uint64_t> numbers(numbersOnList);
    for (std::uint64_t& number : numbers) {
        number = 100'000'000'000 + random() % 900'000'000'000;
    }
    return numbers;
}

double BestOf(int repetitions, const auto& work) {
    double best = std::numeric_limits<double>::infinity();
    for (int i = 0; i < repetitions; ++i) {
        best = std::min(best, Seconds(work));
    }
    return best;
}

void WriteList(const fs::path& file, const std::vector<std::uint64_t>& numbers, int times) {
    std::ofstream stream(file);
    for (int copy = 0; copy < times; ++copy) {
        for (const std::uint64_t number : numbers) {
            stream << number << '\n';
        }
    }
}

// Seconds of a whole run of the peer on a list.
double PeerRun(const fs::path& list, const fs::path& output) {
    const std::string command = "factor < '" + list.string() + "' > '" + output.string() + "'";
    return BestOf(7, [&] {
        if (std::system(command.c_str()) != 0) {
            std::puts("  factor could not be run");
        }
    });
}

std::string Line(std::uint64_t number, const std::vector<std::uint64_t>& factors) {
    std::string line = std::to_string(number);
    line += ':';
    for (const std::uint64_t factor : factors) {
        line += ' ';
        line += std::to_string(factor);
    }
    return line;
}

// How many of our results differ from the peer's lines. The table grows to no factor here: what it doesn't
// reach is left to a table of its own.
int Differences(const std::vector<std::uint64_t>& numbers,
    const std::vector<std::vector<std::uint64_t>>& results, const fs::path& output) {
    std::ifstream stream(output);
    std::string line;
    int differences = 0;
    for (std::size_t i = 0; i < numbers.size() && std::getline(stream, line); ++i) {
        differences += static_cast<int>(line != Line(numbers[i], results[i]));
    }
    return differences;
}

// A system with so little left that no far factor makes the table grow: its square root is already there.
struct NoMemory final : MemoryLimits {
    std::uint64_t AvailableBytes() const override { return 0; }
};

} // namespace

bool Factoring() {
    const auto numbers = RandomNumbers();
    PrimeTable table;
    Begin(table);
    RealRun run;
    NbresPremCalc(table, 1'000'000, run.control);
    const std::int32_t size = table.Size();
    std::vector<std::vector<std::uint64_t>> results(numbers.size());
    const NoMemory noMemory;
    const double ours = BestOf(15, [&] {
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            RunControl control(run.ArretUrg, run.clock, noMemory);
            DecompPremCalc(numbers[i], table, results[i], control);
        }
    });

    const fs::path base = fs::temp_directory_path() / ("PrimesBench." + std::to_string(getpid()));
    const fs::path empty = base.string() + ".empty";
    const fs::path once = base.string() + ".once";
    const fs::path often = base.string() + ".often";
    const fs::path output = base.string() + ".out";
    WriteList(empty, numbers, 0);
    WriteList(often, numbers, copies);
    WriteList(once, numbers, 1);
    const double startUp = PeerRun(empty, output);
    const double whole = PeerRun(often, output);
    PeerRun(once, output);
    const int differences = Differences(numbers, results, output);
    for (const fs::path& file : {empty, once, often, output}) {
        fs::remove(file);
    }

    const double ourNumber = ours / numbersOnList;
    const double peerNumber = (whole - startUp) / (numbersOnList * copies);
    std::printf("%d random numbers of 12 digits on a table to 1e6 (%d entries before, %d after):\n"
                "  ours %.2f µs a number, factor of coreutils %.2f µs (its start-up of %.2f ms taken off), "
                "ratio %.2f; "
                "%d results differ\n",
        numbersOnList, size, table.Size(), 1e6 * ourNumber, 1e6 * peerNumber, 1e3 * startUp,
        ourNumber / peerNumber, differences);
    return Keeps("no slower than factor, and the same results", ourNumber <= peerNumber && differences == 0);
}

} // namespace tessarolyne::PrimesBench

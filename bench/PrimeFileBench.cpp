// The primes below 10^9 saved to a file on a memory disk and loaded from it, beside what the system's own
// tools need: cat to copy that file, wc to count its lines, primesieve to print the same numbers. Exits with
// 1 when a bar is missed.

#include "machine/PosixFileSystem.h"
#include "machine/SystemClock.h"
#include "primes/engine/PrimeFile.h"
#include "primes/engine/PrimeGrowth.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <malloc.h>
#include <memory>
#include <string>
#include <unistd.h>

using namespace tessarolyne;

namespace {

constexpr std::uint64_t limit = 1'000'000'000;
constexpr std::int32_t primesBelow = 50'847'534;
constexpr int passes = 5;

constexpr double saveBar = 2.0;   // times cat
constexpr double printBar = 0.25; // times primesieve
constexpr double loadBar = 4.0;   // times wc
constexpr std::uint64_t memoryBar = 16 * 1024 * 1024;

class NoLimit final : public MemoryLimits {
public:
    std::uint64_t AvailableBytes() const override { return std::uint64_t{1} << 40U; }
};

// Only counts; what is drawn belongs to the window.
class Watcher final : public PrimeFileProgress {
public:
    void Reach(std::int64_t) override { ++reached; }
    int reached = 0;
};

// The best of the passes counts: whatever else the machine does only ever adds to a time.
class Best {
public:
    template <typename Operation>
    void Time(Operation operation) {
        const auto start = std::chrono::steady_clock::now();
        operation();
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        seconds = std::min(seconds, took.count());
    }
    double seconds = std::numeric_limits<double>::infinity();
};

[[noreturn]] void GiveUp(const std::string& reason) {
    std::fprintf(stderr, "%s\n", reason.c_str());
    std::exit(2);
}

void Run(const std::string& command) {
    if (std::system(command.c_str()) != 0) {
        GiveUp("failed: " + command);
    }
}

std::uint64_t ResidentBytes(const char* key) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(key)) {
            return std::strtoull(line.c_str() + std::string(key).size(), nullptr, 10) * 1024;
        }
    }
    GiveUp("no resident size to be had");
}

void ResetPeak() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

bool Report(const char* what, double ours, const char* peer, double theirs, double bar) {
    const bool met = ours <= bar * theirs;
    std::printf("%s %.3f s, %s %.3f s: %.2f times, at most %.2f%s\n", what, ours, peer, theirs, ours / theirs,
        bar, met ? "" : "  MISSED");
    return met;
}

void Fill(PrimeTable& table) {
    std::atomic<bool> stop = false;
    const SystemClock clock;
    const NoLimit memory;
    RunControl run(stop, clock, memory);
    for (const std::uint64_t prime : {2U, 3U, 5U, 7U}) {
        if (!table.Append(prime)) {
            GiveUp("no memory");
        }
    }
    NbresPremCalc(table, limit, run);
}

// The primes below the limit; the growth itself may go one prime beyond it.
void FillBelow(PrimeTable& table) {
    PrimeTable grown;
    Fill(grown);
    for (PrimeTable::Cursor cursor(grown, 0); cursor.Value() < limit;) {
        if (!table.Append(cursor.Value())) {
            GiveUp("no memory");
        }
        if (!cursor.Next()) {
            break;
        }
    }
    if (table.Size() != primesBelow) {
        GiveUp("these are not the primes below 10^9");
    }
}

void Save(PosixFileSystem& files, const PrimeTable& table, int perLine, const std::string& path) {
    Watcher watcher;
    const auto file = files.CreateSafely(path, LinkPolicy::ReplaceTarget);
    WritePrimeFile(table, "Nombre de Nombres Premiers", perLine, *file, watcher);
    file->Commit();
}

// Gives the bytes that were resident at most beyond those of the table.
std::uint64_t Load(PosixFileSystem& files, const std::string& path, Best& best) {
    PrimeTable loaded;
    ::malloc_trim(0); // what an earlier table left would hide what this one takes
    const std::uint64_t before = ResidentBytes("VmRSS:");
    ResetPeak();
    best.Time([&] {
        Watcher watcher;
        const auto file = files.OpenForReading(path);
        ReadPrimeFile(*file, loaded, watcher);
    });
    const std::uint64_t taken = ResidentBytes("VmHWM:") - before;
    if (loaded.Size() != primesBelow) {
        GiveUp("not all primes came back");
    }
    return taken - std::min(taken, loaded.Bytes());
}

} // namespace

int main() {
    const std::string folder = "/dev/shm/PrimeFileBench." + std::to_string(::getpid());
    const std::string saved = folder + "/primes.txt";
    const std::string copy = folder + "/copy.txt";
    Run("mkdir " + folder);
    PosixFileSystem files;
    auto table = std::make_unique<PrimeTable>();
    FillBelow(*table);

    Best save;
    Best cat;
    Best print;
    for (int pass = 0; pass < passes; ++pass) {
        save.Time([&] { Save(files, *table, 10, saved); });
        cat.Time([&] { Run("cat " + saved + " > " + copy); });
    }
    print.Time([&] { Run(PRIMESIEVE " 1e9 --print > " + copy); });
    // One number for each line, the same numbers.
    Run("tail -n +2 " + saved + " | tr '\\t' '\\n' | cmp - " + copy);
    Save(files, *table, 0, copy);
    table.reset();

    Best load;
    Best loadOneLine;
    Best wc;
    std::uint64_t beyondTable = 0;
    for (int pass = 0; pass < passes; ++pass) {
        beyondTable = std::max(beyondTable, Load(files, saved, load));
        beyondTable = std::max(beyondTable, Load(files, copy, loadOneLine));
        wc.Time([&] { Run("wc -l " + saved + " > /dev/null"); });
    }
    Run("rm -r " + folder);

    bool met = Report("save", save.seconds, "cat", cat.seconds, saveBar);
    met = Report("save", save.seconds, "primesieve --print", print.seconds, printBar) && met;
    met = Report("load", load.seconds, "wc -l", wc.seconds, loadBar) && met;
    met = Report("load of one line", loadOneLine.seconds, "wc -l", wc.seconds, loadBar) && met;
    std::printf("load %.1f MiB beyond the table, at most %.0f%s\n",
        static_cast<double>(beyondTable) / (1024 * 1024), static_cast<double>(memoryBar) / (1024 * 1024),
        beyondTable <= memoryBar ? "" : "  MISSED");
    return met && beyondTable <= memoryBar ? 0 : 1;
}

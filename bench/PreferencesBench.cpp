// The preferences file is written and read in under a millisecond each on a memory file system. The peer is
// the same text through std::ofstream and std::ifstream, without any of the safety, in the same run. The bar
// is on the median: on a busy machine some rounds lose their turn of the processor, the peer's as well.
#include "app/PreferencesFile.h"
#include "machine/PosixFileSystem.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

using namespace tessarolyne;

namespace {

constexpr int rounds = 2000;
constexpr double barInMicroseconds = 1000;

struct Times {
    double median;
    double nearlyAll; // 99 of 100 rounds are below
};

Times Measure(const std::function<void()>& round) {
    using Clock = std::chrono::steady_clock;
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        const auto start = Clock::now();
        round();
        times.push_back(std::chrono::duration<double, std::micro>(Clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return {times[rounds / 2], times[rounds * 99 / 100]};
}

bool Report(const char* what, Times ours, Times peer, const char* peerName) {
    const bool held = ours.median < barInMicroseconds;
    std::printf("%-5s %6.1f us (99 in 100 below %7.1f us)   %s %6.1f us (%7.1f us)   bar %.0f us: %s\n", what,
        ours.median, ours.nearlyAll, peerName, peer.median, peer.nearlyAll, barInMicroseconds,
        held ? "held" : "MISSED");
    return held;
}

[[noreturn]] void Stop(const char* reason) {
    std::fprintf(stderr, "%s\n", reason);
    std::exit(2);
}

} // namespace

int main() {
    std::string folder = "/dev/shm/tessarolyne-bench-XXXXXX";
    if (::mkdtemp(folder.data()) == nullptr) {
        Stop("no memory file system at /dev/shm");
    }
    PosixFileSystem files;
    const auto item = FolderItem::FromNativePath(files, folder).value();
    Preferences preferences;
    preferences.dateLaunch = {2026, 11, 22, 9, 5, 3};
    preferences.fichNbPrems = "Root:home:user:Documents:Liste des Nombres Premiers.txt";
    preferences.langue = "fr";
    preferences.monnaies = "euros";
    const std::string text = PreferencesText(preferences);
    const std::string peerPath = folder + "/peer.txt";

    const auto write = Measure([&] { WritePreferencesFile(item, preferences, false); });
    const auto peerWrite = Measure([&] { std::ofstream(peerPath, std::ios::binary) << text; });
    Preferences read;
    const auto reading = Measure([&] {
        if (ReadPreferencesFile(item, read) != PreferencesOutcome::Read) {
            Stop("what was written can't be read");
        }
    });
    std::string peerText;
    const auto peerReading = Measure([&] {
        std::ostringstream all;
        all << std::ifstream(peerPath, std::ios::binary).rdbuf();
        peerText = all.str();
    });
    std::filesystem::remove_all(folder);
    if (read.fichNbPrems != preferences.fichNbPrems || peerText != text) {
        Stop("what was read isn't what was written");
    }
    const bool written = Report("write", write, peerWrite, "std::ofstream");
    const bool wasRead = Report("read", reading, peerReading, "std::ifstream");
    return written && wasRead ? 0 : 1;
}

// From the firing of TimerTempo to all fields written, bases only, on the models; beside the bare digits in
// two bases by std::to_chars. The bar is 100 microseconds at the 99th percentile.

#include "support/TestWorld.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

using namespace tessarolyne;

namespace {

constexpr double barMicroseconds = 100;
constexpr int rounds = 20'000;

template <typename Work>
std::vector<double> Microseconds(Work work) {
    std::vector<double> times;
    std::mt19937_64 random(1);
    std::uniform_int_distribution<std::uint64_t> numbers(0, 999'999'999'999);
    for (int i = 0; i < rounds; ++i) {
        const std::uint64_t number = numbers(random);
        const auto start = std::chrono::steady_clock::now();
        work(number);
        times.push_back(
            std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times;
}

void Print(const char* what, const std::vector<double>& times) {
    std::printf("%-36s median %7.2f us, 99th percentile %7.2f us\n", what, times[times.size() / 2],
        times[times.size() * 99 / 100]);
}

} // namespace

TEST_CASE("Bases at a keystroke") {
    TestWorld world;
    WinMain& window = world.Main();
    const auto ours = Microseconds([&](std::uint64_t number) {
        window.EditFieldNbre.Text = std::to_string(number);
        window.entry.ConvNbreBaseD();
    });
    static char digits[64];
    const auto peer = Microseconds([&](std::uint64_t number) {
        std::to_chars(digits, digits + sizeof digits, number, 16);
        std::to_chars(digits, digits + sizeof digits, number, 2);
    });
    Print("all fields, bases 16 and 2", ours);
    Print("std::to_chars, bases 16 and 2", peer);
    CHECK(window.EditFieldBaseDest.Text().size() > 0);
    CHECK_MESSAGE(ours[ours.size() * 99 / 100] < barMicroseconds, "the bar is missed");
}

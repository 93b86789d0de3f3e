#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tessarolyne {

// Ends a fuzz target's run, and says why.
inline void Must(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

using Random = std::mt19937;

// The text after a few random cuts, repetitions, strange bytes and insertions of `pieces`.
inline std::string Damaged(std::string text, const std::vector<std::string>& pieces, Random& random) {
    for (auto changes = random() % 6; changes > 0; --changes) {
        const std::size_t place = random() % (text.size() + 1);
        switch (random() % 4) {
        case 0:
            text.erase(place, random() % 20);
            break;
        case 1:
            text.insert(place, text.substr(random() % (text.size() + 1), random() % 80));
            break;
        case 2:
            if (place < text.size()) {
                text[place] = static_cast<char>(random() % 256);
            }
            break;
        default:
            text.insert(place, pieces[random() % pieces.size()]);
        }
    }
    return text;
}

// Runs a fuzz target, where there is no fuzzer, on damaged texts of `make`; a fault ends the program.
inline void RunOnDamaged(const std::function<std::string(Random&)>& make,
    const std::vector<std::string>& pieces, int runs = 20'000) {
    Random random(20261122);
    for (; runs > 0; --runs) {
        const std::string bytes = Damaged(make(random), pieces, random);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
}

} // namespace tessarolyne

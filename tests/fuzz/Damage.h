#pragma once

#include "fuzz/Must.h"

#include <functional>
#include <random>
#include <string>
#include <vector>

namespace tessarolyne::tests {

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

} // namespace tessarolyne::tests

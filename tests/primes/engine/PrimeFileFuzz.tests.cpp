#include "fuzz/Damage.h"

#include <doctest/doctest.h>

using namespace tessarolyne::tests;

namespace {

// Rows as the program writes them: numbers that rise by small even gaps, of any length.
std::string Rows(Random& random) {
    std::string text = random() % 2 == 0 ? "x : 1000\n" : "";
    std::uint64_t number = 1;
    for (auto digits = random() % 15; digits > 0; --digits) {
        number = number * 10 + random() % 10;
    }
    for (auto count = 1 + random() % 60; count > 0; --count) {
        text += std::to_string(number) + (count % 7 == 0 ? '\n' : '\t');
        number += 2 * (random() % 40);
    }
    return text;
}

} // namespace

TEST_CASE("Any bytes whatever give the numbers that a plain reader finds in them") {
    RunOnDamaged(&Rows,
        {"\r", "\n", "\r\n", "\t", "\t\t", " : ", " :", ": ", "\xEF\xBB\xBF", "-", "+", ".", " ", "e", "e5",
            "E-3", "0", "00000000", "999999999999", "99999999999999999999", "9007199254740993", "0.0000001e9",
            std::string(1, '\0'), "x", "1000003\t1000033\t1000037\t1000039\t1000081\t1000099\t", "/",
            "10000000001\t10000000003\t"},
        10'000);
}

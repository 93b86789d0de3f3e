#include "ui/FracTexte.h"

#include <doctest/doctest.h>

#include <limits>

using namespace tessarolyne;

TEST_CASE(
    "A text is cut at its places for values, and there is no piece before the first or after the last") {
    CHECK(TextPiece("a¿%b", 1) == "a");
    CHECK(TextPiece(" \r¿%\n ", 2) == "\n ");
    CHECK(TextPiece("a¿%", 2) == "");
    CHECK(TextPiece("50 %¿ ¿ %", 1) == "50 %¿ ¿ %");
    CHECK(TextPiece("a\xC2¿%b\xBF%", 2) == "b\xBF%");
    for (const std::int64_t part : {std::int64_t{3}, std::int64_t{0},
             std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()}) {
        CHECK_FALSE(TextPiece("a¿%b", part).has_value());
    }
}

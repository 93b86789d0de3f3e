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
    CHECK_FALSE(TextPiece("a¿%b", 3).has_value());
    CHECK_FALSE(TextPiece("a¿%b", 0).has_value());
    CHECK_FALSE(TextPiece("a¿%b", std::numeric_limits<std::int64_t>::min()).has_value());
}

#include "words/FirstLetter.h"

#include <doctest/doctest.h>

#include <string>
#include <utility>
#include <vector>

using namespace tessarolyne;

TEST_CASE("Small letters of Latin-1 and Latin Extended-A have their capitals, other characters stay") {
    const std::vector<std::pair<std::string, std::string>> pairs = {{"a", "A"}, {"z", "Z"}, {"à", "À"},
        {"þ", "Þ"}, {"ÿ", "Ÿ"}, {"ā", "Ā"}, {"ķ", "Ķ"}, {"ı", "I"}, {"ĺ", "Ĺ"}, {"ň", "Ň"}, {"ŋ", "Ŋ"},
        {"œ", "Œ"}, {"ŷ", "Ŷ"}, {"ź", "Ź"}, {"ž", "Ž"}, {"ſ", "S"}};
    for (const auto& [small, capital] : pairs) {
        CAPTURE(small);
        CHECK(UpperCaseLetter(small) == capital);
        if (capital.size() == small.size()) {
            CHECK(UpperCaseLetter(capital) == capital);
        }
    }
    for (const std::string& other : std::vector<std::string>{
             "", "1", "`", "{", "÷", "ß", "µ", "ĸ", "ŉ", "ƀ", "€", "д", "😀", "\xC3", "\xFF"}) {
        CAPTURE(other);
        CHECK(UpperCaseLetter(other) == other);
    }
}

TEST_CASE("The first letter is a whole code point, or one byte of a broken text") {
    CHECK(FirstLetter("") == "");
    CHECK(FirstLetter("euro") == "e");
    CHECK(FirstLetter("écu") == "é");
    CHECK(FirstLetter("€ 1") == "€");
    CHECK(FirstLetter("😀!") == "😀");
    CHECK(FirstLetter("\xC3") == "\xC3");
    CHECK(FirstLetter("\xE2\x82z") == "\xE2");
    CHECK(FirstLetter("\xA9z") == "\xA9");
}

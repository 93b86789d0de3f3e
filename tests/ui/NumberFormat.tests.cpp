#include "ui/WrittenNumber.h"

#include <doctest/doctest.h>

#include <random>
#include <string>

using namespace tessarolyne;

TEST_CASE("Separators stand between groups from the right, of the size that the base decides") {
    CHECK(FormatString("1234", " ", 0) == "1234");
    CHECK(FormatString("1234", " ", -3) == "1234");
    CHECK(FormatString("123456", " ", 3) == "123 456");
    CHECK(FormatString("aé€😀", "··", 1) == "a··é··€··😀");
    CHECK(FormatType("10101", 2, true) == "1 0101");
    CHECK(FormatType("1234567", 8, true) == "1 234 567");
    CHECK(FormatType("F FFF", 16, true) == "FF FF");
    CHECK(FormatType("ABCDEF", 36, true) == "A BCDEF");
    CHECK(FormatType("FF FF", 16, false) == "FFFF");
}

TEST_CASE("A decimal number is shown in groups or bare, with two decimals if it has any, and no other text") {
    const char* const rows[][3] = {{"1 234 567", "1 234 567", "1234567"}, {"1234.5", "1 234.50", "1234.50"},
        {"12.", "12", "12"}, {".5", "0.50", "0.50"}, {"007.00", "7", "7"}, {"-1234", "-1 234", "-1234"}};
    for (const auto& [text, shown, bare] : rows) {
        CHECK(FormatNbre(text, true) == shown);
        CHECK(FormatNbre(text, false) == bare);
    }
    for (const char* text : {"", " ", "#Erreur Nbre !", "1,5", "1\u202F234"}) {
        CHECK(FormatNbre(text, true) == text);
        CHECK(FormatNbre(text, false) == text);
    }
}

TEST_CASE("What FormatNbre gives it takes again, and its forms turn into each other") {
    std::mt19937_64 random(7);
    std::string edges[] = {"0.004", "-0.004", "1234.996", "1234.995", "0.995", "-1000000000000000000",
        "4503599627370496.5", "999999999999.994"};
    for (int round = 0; round < 20000; ++round) {
        const std::string text = round < 8 ? edges[round]
                                           : std::to_string(random() % 1000000000000 >> random() % 40) + "." +
                                                 std::to_string(random() % 100000 >> random() % 17);
        const std::string shown = FormatNbre(text, true);
        const std::string bare = FormatNbre(text, false);
        CAPTURE(text);
        REQUIRE(FormatNbre(shown, true) == shown);
        REQUIRE(FormatNbre(bare, false) == bare);
        REQUIRE(FormatNbre(shown, false) == bare);
        REQUIRE(FormatNbre(bare, true) == shown);
    }
}

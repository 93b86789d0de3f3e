#include "words/FrenchWords.h"

#include <doctest/doctest.h>

#include <array>
#include <string>
#include <vector>

using namespace tessarolyne;

namespace {

using Texts = std::vector<std::string>;

const std::string tooLarge = "trop grand";

std::string French(const std::string& number, bool chBe = false, const std::string& currency = "euros") {
    return ConvNbreLettresFr(number, chBe, currency, tooLarge);
}

struct Example {
    std::string number;
    std::string france;
    std::string swissBelgian;
};

const std::vector<Example> examples = {
    {"1", "un ", "un "},
    {"17", "dix-sept ", "dix-sept "},
    {"21", "vingt et un ", "vingt et un "},
    {"22", "vingt-deux ", "vingt-deux "},
    {"70", "soixante-dix ", "septante "},
    {"71", "soixante et onze ", "septante et un "},
    {"77", "soixante-dix-sept ", "septante-sept "},
    {"80", "quatre-vingts ", "huitante "},
    {"81", "quatre-vingt-un ", "huitante-un "},
    {"91", "quatre-vingt-onze ", "nonante et un "},
    {"99", "quatre-vingt-dix-neuf ", "nonante-neuf "},
    {"101", "cent un ", "cent un "},
    {"200", "deux cents ", "deux cents "},
    {"201", "deux cent un ", "deux cent un "},
    {"280", "deux cent quatre-vingts ", "deux cent huitante "},
    {"1000", "mille ", "mille "},
    {"1100", "mille cent ", "mille cent "},
    {"2000", "deux mille ", "deux mille "},
    {"80080", "quatre-vingt mille quatre-vingts ", "huitante mille huitante "},
    {"81000", "quatre-vingt-un mille ", "huitante-un mille "},
    {"200200", "deux cent mille deux cents ", "deux cent mille deux cents "},
    {"1000000", "un million d'", "un million d'"},
    {"1000001", "un million un ", "un million un "},
    {"1001000", "un million mille ", "un million mille "},
    {"21000000", "vingt et un millions d'", "vingt et un millions d'"},
    {"200000000", "deux cents millions d'", "deux cents millions d'"},
    {"999999999999",
        "neuf cent quatre-vingt-dix-neuf milliards neuf cent quatre-vingt-dix-neuf millions neuf cent "
        "quatre-vingt-dix-neuf mille neuf cent quatre-vingt-dix-neuf ",
        "neuf cent nonante-neuf milliards neuf cent nonante-neuf millions neuf cent nonante-neuf mille neuf "
        "cent nonante-neuf "},
};

// The whole words of a group of one, and the end of those of a larger group, in each place of a number.
struct Rank {
    int rang;
    std::string one;
    std::string several;
};

const std::array<Rank, 4> ranks = {{{1, "un", ""}, {2, "mille", " mille"}, {3, "un million", " millions"},
    {4, "un milliard", " milliards"}}};

bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

} // namespace

TEST_CASE("French numbers are spelled in both variants as in the examples") {
    for (const Example& example : examples) {
        CAPTURE(example.number);
        CHECK(French(example.number, false) == example.france);
        CHECK(French(example.number, true) == example.swissBelgian);
    }
}

TEST_CASE("Plural marks, hyphens and the scale word of every group follow the rules of their rank") {
    for (const Rank& rank : ranks) {
        for (int group = 1; group < 1000; ++group) {
            const std::string words = TrouvNbreLettr(std::to_string(group), rank.rang, false);
            const int rest = group % 100;
            CAPTURE(words);
            const bool noun = rank.rang != 2;
            REQUIRE((group == 1 ? words == rank.one : words.ends_with(rank.several)));
            REQUIRE(Contains(words, "cents") == (group >= 200 && rest == 0 && noun));
            REQUIRE(Contains(words, "vingts") == (rest == 80 && noun));
            REQUIRE(Contains(words, " et ") == (rest % 10 == 1 && rest > 20 && rest < 80));
            REQUIRE_FALSE(Contains(words, "milles"));
            const bool joined = rest > 16 && !Contains(words, " et ") && (rest % 10 != 0 || rest >= 70);
            REQUIRE(Contains(words, "-") == joined);
        }
    }
}

TEST_CASE("The Swiss and Belgian words have no mark on huitante and no et before its un") {
    for (const Rank& rank : ranks) {
        for (int group = 1; group < 1000; ++group) {
            const std::string words = TrouvNbreLettr(std::to_string(group), rank.rang, true);
            const int rest = group % 100;
            CAPTURE(words);
            REQUIRE_FALSE(Contains(words, "huitantes"));
            REQUIRE(Contains(words, " et ") == (rest % 10 == 1 && rest > 20 && rest != 81));
            REQUIRE(Contains(words, "-") == (rest > 16 && rest % 10 != 0 && !Contains(words, " et ")));
        }
    }
}

TEST_CASE("The elision stands behind whole millions alone, by the currency's first letter") {
    for (const std::string& number :
        Texts{"1000000", "21000000", "1000000000", "80001000000", "999999000000"}) {
        CAPTURE(number);
        for (const std::string& currency :
            Texts{"euros", "Euros", "€", "Ares", "yens", "YENS", "ors", "unités", "imi"}) {
            CHECK(French(number, false, currency).ends_with("d'"));
        }
        for (const std::string& currency :
            Texts{"", "francs", "heures", "écus", "É", "$", " euros", "\xE2\x82"}) {
            CHECK(French(number, true, currency).ends_with("de "));
        }
    }
    for (const std::string& number : Texts{"0", "1000", "1000001", "1001000", "999000999", "1000000001000"}) {
        CAPTURE(number);
        CHECK_FALSE(French(number, false, "euros").ends_with("d'"));
        CHECK_FALSE(French(number, false, "francs").ends_with("de "));
    }
}

TEST_CASE("Twelve digits are spelled in French and thirteen give the message as it is") {
    CHECK(French("100000000000") == "cent milliards d'");
    CHECK(French("1000000000000") == tooLarge);
    CHECK(French(std::string(309, '9'), true) == tooLarge);
    CHECK(ConvNbreLettresFr("1000000000000", false, "euros", "").empty());
}

#include "words/NumbersInWords.h"
#include "words/PlainSpeller.h"

#include <doctest/doctest.h>

#include <random>
#include <string>
#include <vector>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

std::string French(const std::string& number, bool chBe = false, const std::string& currency = "euros") {
    return ConvNbreLettresFr(number, chBe, currency, "trop grand");
}

std::string English(const std::string& number) {
    return ConvNbreLettresEn(number, "too large");
}

struct Example {
    const char* number;
    const char* france;
    const char* swissBelgian;
};

const Example frenchExamples[] = {
    {"0", "zéro ", "zéro "},
    {"71", "soixante et onze ", "septante et un "},
    {"80", "quatre-vingts ", "huitante "},
    {"81", "quatre-vingt-un ", "huitante-un "},
    {"91", "quatre-vingt-onze ", "nonante et un "},
    {"80080", "quatre-vingt mille quatre-vingts ", "huitante mille huitante "},
    {"200200", "deux cent mille deux cents ", "deux cent mille deux cents "},
    {"21000000", "vingt et un millions d'", "vingt et un millions d'"},
    {"1000000001", "un milliard un ", "un milliard un "},
};

const std::pair<const char*, const char*> englishExamples[] = {
    {"21", "twenty one "},
    {"1001", "one thousand and one "},
    {"1100", "one thousand one hundred "},
    {"21021", "twenty one thousand and twenty one "},
    {"1000100", "one million one hundred "},
};

// All the small numbers, all groups of each rank, and numbers of any length, a fourth of whose groups are 0.
std::vector<std::size_t> Numbers() {
    std::vector<std::size_t> numbers;
    for (std::size_t n = 0; n < 20'000; ++n) {
        numbers.push_back(n);
    }
    for (std::size_t group = 1; group < 1000; ++group) {
        numbers.insert(numbers.end(), {group * 1'000, group * 1'000'000, group * 1'000'000'000});
    }
    std::mt19937 random(1);
    for (int i = 0; i < 100'000; ++i) {
        std::size_t number = 0;
        for (auto groups = 1 + random() % 4; groups > 0; --groups) {
            number = number * 1000 + (random() % 4 == 0 ? 0 : random() % 1000);
        }
        numbers.push_back(number);
    }
    return numbers;
}

} // namespace

TEST_CASE("Numbers are spelled in three languages as in the examples") {
    for (const Example& example : frenchExamples) {
        CHECK(French(example.number, false) == example.france);
        CHECK(French(example.number, true) == example.swissBelgian);
    }
    for (const auto& [number, words] : englishExamples) {
        CHECK(English(number) == words);
    }
}

TEST_CASE("Every number has the words that a plain speller gives it") {
    for (const std::size_t number : Numbers()) {
        const std::string digits = std::to_string(number);
        const std::string end = number > 0 && number % 1'000'000 == 0 ? " d'" : " ";
        REQUIRE(French(digits, false) == PlainFrench(number, false) + end);
        REQUIRE(French(digits, true) == PlainFrench(number, true) + end);
        REQUIRE(English(digits) == (number < 1'000'000'000 ? PlainEnglish(number) + " " : "too large"));
    }
}

TEST_CASE("Whole millions are joined by d' to a vowel, by de to all else, and other numbers to nothing") {
    for (const char* currency : {"euros", "Euros", "€", "Ares", "yens", "YENS", "ors", "unités", "imi"}) {
        CHECK(French("80001000000", false, currency).ends_with("d'"));
    }
    for (const char* currency : {"", "francs", "heures", "écus", "É", "$", " euros", "\xE2\x82"}) {
        CHECK(French("1000000", true, currency) == "un million de ");
        CHECK(French("1001000", true, currency).ends_with("mille "));
    }
}

TEST_CASE("A number of too many digits gives the message as it is") {
    CHECK(French("1000000000000") == "trop grand");
    CHECK(French(std::string(309, '9'), true) == "trop grand");
    CHECK(English("1000000000") == "too large");
}

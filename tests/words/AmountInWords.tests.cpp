#include "words/AmountInWords.h"

#include <doctest/doctest.h>

#include <limits>
#include <string>
#include <utility>

using namespace tessarolyne;

namespace {

constexpr auto fr = WordsLanguage::Fr;
constexpr auto chBe = WordsLanguage::ChBe;
constexpr auto en = WordsLanguage::En;

AmountSettings Euros(WordsLanguage language, bool hyphens = false, bool capital = false) {
    return {language, "euro", "euros", "centime", "centimes", hyphens, capital, "trop  grand !", {}};
}

struct Example {
    double value;
    WordsLanguage language;
    const char* words;
};

} // namespace

TEST_CASE(
    "Each part takes the noun of its own number, zero the singular, and a message goes before its own") {
    const Example examples[] = {
        {0, fr, "zéro euro zéro centime"},
        {1.01, fr, "un euro un centime"},
        {21.80, chBe, "vingt et un euros huitante centimes"},
        {2.50, en, "two euros fifty centimes"},
        {80.80, fr, "quatre-vingts euros quatre-vingts centimes"},
        {1000000, fr, "un million d'euros zéro centime"},
        {1000000000, en, "trop  grand !euros zero centime"},
        {1e12, chBe, "trop  grand !euros zéro centime"},
        {std::numeric_limits<double>::infinity(), fr, "trop  grand !euros zéro centime"},
        {-0.01, fr, ""},
        {std::numeric_limits<double>::quiet_NaN(), fr, ""},
    };
    for (const Example& example : examples) {
        CAPTURE(example.value);
        CHECK(AmountInWords(example.value, Euros(example.language)) == example.words);
    }
}

TEST_CASE("Hyphens join the words of the numbers and leave the currency words alone") {
    const Example examples[] = {
        {21.80, fr, "vingt-et-un francs suisses quatre-vingts centimes"},
        {71, chBe, "septante-et-un francs suisses zéro centime"},
        {1001.01, en, "one-thousand-and-one francs suisses one centime"},
        {1000000, fr, "un-million-de francs suisses zéro centime"},
        {1e12, fr, "trop--grand-!francs suisses zéro centime"},
    };
    for (const Example& example : examples) {
        AmountSettings settings = Euros(example.language, true);
        settings.pluralCurrency = "francs suisses";
        CHECK(AmountInWords(example.value, settings) == example.words);
    }
    CHECK(AmountInWords(1000000, Euros(fr, true)) == "un-million-d'euros zéro centime");
}

TEST_CASE("The first letter becomes a capital, also that of a message") {
    AmountSettings settings = Euros(fr, false, true);
    CHECK(AmountInWords(0, settings) == "Zéro euro zéro centime");
    settings.tooLargeText = "évitez cela ! ";
    CHECK(AmountInWords(1e12, settings) == "Évitez cela ! euros zéro centime");
    settings.tooLargeText = settings.pluralCurrency = "";
    CHECK(AmountInWords(1e12, settings) == " zéro centime");
}

TEST_CASE(
    "Cents are rounded from the double's exact value, a half upwards, with no share in the whole part") {
    const std::pair<double, const char*> cases[] = {{-0.0, "0"}, {0.05, "5"}, {4.35, "35"}, {0.99, "99"},
        {0.125, "13"}, {0.375, "38"}, {1234567.125, "13"}, // exact halves
        {0.005, "1"},                                      // 0.005000000000000000104
        {0.015, "1"},  // 0.01499999999999999944, whose hundredfold as a double is 1.5
        {1.005, "0"},  // 1.00499999999999989
        {0.285, "28"}, // 0.284999999999999976
        {0.995, "99"}, // 0.99499999999999999556
        {0.9951, "0"}, // 1.00
        {std::numeric_limits<double>::denorm_min(), "0"}, {9007199254740993.0, "0"}};
    for (const auto& [value, cents] : cases) {
        CAPTURE(value);
        CHECK(Cents(value) == cents);
    }
    CHECK(WholePart(999999999999.99) == "999999999999");
    CHECK(AmountInWords(1.999, Euros(fr)) == "un euro zéro centime");
}

#include "words/AmountInWords.h"

#include <doctest/doctest.h>

#include <limits>
#include <string>
#include <utility>

using namespace tessarolyne;

namespace {

constexpr const char* fr = "fr";
constexpr const char* chBe = "ch be";
constexpr const char* en = "en";

AmountSettings Euros(const char* language, bool hyphens = false, bool capital = false) {
    return {language, "euro", "euros", "centime", "centimes", hyphens, capital, "trop  grand !", {}};
}

struct Example {
    double value;
    const char* language;
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

TEST_CASE("Cents are rounded from the double's exact value, with no share in the whole part") {
    for (const auto& [value, words] :
        {std::pair(-0.0, "zéro euro zéro"), {0.05, "zéro euro cinq"}, {4.35, "quatre euros trente-cinq"},
            {0.125, "zéro euro treize"}, {1.999, "un euro zéro"}, {0.995, "zéro euro quatre-vingt-dix-neuf"},
            {999999999999.99, "neuf cent quatre-vingt-dix-neuf milliards neuf cent "}}) {
        CHECK(AmountInWords(value, Euros(fr)).starts_with(words));
    }
}

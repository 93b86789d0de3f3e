#include "words/NumbersInWords.h"

#include <doctest/doctest.h>

#include <limits>
#include <string>

using namespace tessarolyne;

namespace {

constexpr const char* fr = "fr";
constexpr const char* chBe = "ch be";
constexpr const char* en = "en";

AmountSettings Euros(const char* language, bool hyphens = false, bool capital = false) {
    return {language, "euro", "euros", "centime", "centimes", hyphens, capital, "trop  grand !", {}};
}

} // namespace

TEST_CASE("Each part takes the noun of its own number, and hyphens and a capital are of the words alone") {
    const double infinite = std::numeric_limits<double>::infinity();
    const struct {
        double value;
        const char *language, *words;
        bool hyphens = false, capital = false;
        const char* currency = "euros";
    } rows[] = {{0, fr, "zéro euro zéro centime"}, {-0.0, fr, "zéro euro zéro centime"},
        {1.01, fr, "un euro un centime"}, {2.50, en, "two euros fifty centimes"},
        {1.999, fr, "un euro zéro centime"}, // each part by itself
        {4.35, fr, "quatre euros trente-cinq centimes"}, {0.125, chBe, "zéro euro treize centimes"},
        {1000000, fr, "un million d'euros zéro centime"},
        {999999999999.99, en, "trop  grand !euros ninety nine centimes"},
        {1e12, chBe, "trop  grand !euros zéro centime"}, {infinite, fr, "trop  grand !euros zéro centime"},
        {-0.01, fr, ""}, {std::numeric_limits<double>::quiet_NaN(), fr, ""},
        {21.80, fr, "vingt-et-un francs suisses quatre-vingts centimes", true, false, "francs suisses"},
        {1000000, fr, "un-million-d'euros zéro centime", true},
        {1e12, fr, "Trop--grand-!euros zéro centime", true, true},
        {0, fr, "Zéro euro zéro centime", false, true}};
    for (const auto& row : rows) {
        CAPTURE(row.words);
        AmountSettings settings = Euros(row.language, row.hyphens, row.capital);
        settings.pluralCurrency = row.currency;
        CHECK(AmountInWords(row.value, settings) == row.words);
    }
    AmountSettings settings = Euros(fr, false, true);
    settings.tooLargeText = "évitez cela ! ";
    CHECK(AmountInWords(1e12, settings) == "Évitez cela ! euros zéro centime");
    settings.tooLargeText = settings.pluralCurrency = "";
    CHECK(AmountInWords(1e12, settings) == " zéro centime");
}

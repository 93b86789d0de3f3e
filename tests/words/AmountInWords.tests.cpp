#include "words/AmountInWords.h"

#include <doctest/doctest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

using namespace tessarolyne;

namespace {

AmountSettings Euros(WordsLanguage language) {
    AmountSettings settings;
    settings.language = language;
    settings.singularCurrency = "euro";
    settings.pluralCurrency = "euros";
    settings.singularCents = "centime";
    settings.pluralCents = "centimes";
    settings.tooLargeText = "Vous devez entrer un nombre en dessous d'un billion (mille milliards) !";
    return settings;
}

struct Example {
    double value;
    std::string fr;
    std::string chBe;
    std::string en;
};

const std::vector<Example> examples = {
    {81, "quatre-vingt-un euros zéro centime", "huitante-un euros zéro centime",
        "eighty one euros zero centime"},
    {1000000, "un million d'euros zéro centime", "un million d'euros zéro centime",
        "one million euros zero centime"},
    {1000000000, "un milliard d'euros zéro centime", "un milliard d'euros zéro centime",
        "Vous devez entrer un nombre en dessous d'un billion (mille milliards) !euros zero centime"},
    {0.01, "zéro euro un centime", "zéro euro un centime", "zero euro one centime"},
    {1.01, "un euro un centime", "un euro un centime", "one euro one centime"},
    {21.80, "vingt et un euros quatre-vingts centimes", "vingt et un euros huitante centimes",
        "twenty one euros eighty centimes"},
    {0, "zéro euro zéro centime", "zéro euro zéro centime", "zero euro zero centime"},
    {1, "un euro zéro centime", "un euro zéro centime", "one euro zero centime"},
    {2.50, "deux euros cinquante centimes", "deux euros cinquante centimes", "two euros fifty centimes"},
    {80.80, "quatre-vingts euros quatre-vingts centimes", "huitante euros huitante centimes",
        "eighty euros eighty centimes"},
};

} // namespace

TEST_CASE("Amounts are worded in the three languages as in the examples") {
    for (const Example& example : examples) {
        CAPTURE(example.value);
        CHECK(AmountInWords(example.value, Euros(WordsLanguage::Fr)) == example.fr);
        CHECK(AmountInWords(example.value, Euros(WordsLanguage::ChBe)) == example.chBe);
        CHECK(AmountInWords(example.value, Euros(WordsLanguage::En)) == example.en);
    }
}

TEST_CASE("Hyphens join the words of the numbers and leave the currency words alone") {
    const auto hyphened = [](double value, WordsLanguage language, const std::string& currencies = "euros") {
        AmountSettings settings = Euros(language);
        settings.hyphens = true;
        settings.pluralCurrency = currencies;
        return AmountInWords(value, settings);
    };
    CHECK(hyphened(21.80, WordsLanguage::Fr) == "vingt-et-un euros quatre-vingts centimes");
    CHECK(hyphened(71, WordsLanguage::ChBe) == "septante-et-un euros zéro centime");
    CHECK(hyphened(1001.01, WordsLanguage::En) == "one-thousand-and-one euros one centime");
    CHECK(hyphened(1000000, WordsLanguage::Fr) == "un-million-d'euros zéro centime");
    CHECK(hyphened(1000000, WordsLanguage::Fr, "francs suisses") ==
          "un-million-de francs suisses zéro centime");
    CHECK(hyphened(1e12, WordsLanguage::Fr) ==
          "Vous-devez-entrer-un-nombre-en-dessous-d'un-billion-(mille-milliards)-!euros zéro centime");
}

TEST_CASE("The first letter becomes a capital, also that of a message") {
    AmountSettings settings = Euros(WordsLanguage::Fr);
    settings.capital = true;
    CHECK(AmountInWords(21.80, settings) == "Vingt et un euros quatre-vingts centimes");
    CHECK(AmountInWords(0, settings) == "Zéro euro zéro centime");
    settings.tooLargeText = "évitez les grands nombres ! ";
    CHECK(AmountInWords(1e12, settings) == "Évitez les grands nombres ! euros zéro centime");
    settings.tooLargeText = "";
    settings.pluralCurrency = "";
    CHECK(AmountInWords(1e12, settings) == " zéro centime");
}

TEST_CASE("Cents are rounded from the double's exact value, an exact half upwards") {
    const std::vector<std::pair<double, std::string>> cases = {{0, "0"}, {-0.0, "0"}, {0.05, "5"},
        {0.10, "10"}, {0.5, "50"}, {21.80, "80"}, {4.35, "35"}, {0.99, "99"}, {0.125, "13"}, {0.375, "38"},
        {0.625, "63"}, {0.875, "88"}, {1234567.125, "13"}, // exact halves
        {0.005, "1"},                                      // 0.005000000000000000104
        {0.015, "1"},  // 0.01499999999999999944, whose hundredfold as a double is 1.5
        {1.005, "0"},  // 1.00499999999999989
        {2.675, "67"}, // 2.67499999999999982
        {0.145, "14"}, // 0.14499999999999999
        {0.285, "28"}, // 0.284999999999999976
        {0.995, "99"}, // 0.99499999999999999556
        {8.995, "99"}, // 8.9949999999999992
        {0.9951, "0"}, // 1.00
        {std::numeric_limits<double>::denorm_min(), "0"}, {9007199254740993.0, "0"}};
    for (const auto& [value, cents] : cases) {
        CAPTURE(value);
        CHECK(Cents(value) == cents);
    }
}

TEST_CASE("The whole part and the cents are taken independently") {
    CHECK(WholePart(1.999) == "1");
    CHECK(Cents(1.999) == "0");
    CHECK(AmountInWords(1.999, Euros(WordsLanguage::Fr)) == "un euro zéro centime");
    CHECK(WholePart(999999999999.99) == "999999999999");
    CHECK(AmountInWords(999999999.99, Euros(WordsLanguage::En))
              .ends_with("ninety nine euros ninety nine centimes"));
}

TEST_CASE("A value above every limit gives the message, and one that is no amount gives nothing") {
    const AmountSettings settings = Euros(WordsLanguage::ChBe);
    const std::string message = settings.tooLargeText + "euros zéro centime";
    CHECK(AmountInWords(1e12, settings) == message);
    CHECK(AmountInWords(1e300, settings) == message);
    CHECK(AmountInWords(std::numeric_limits<double>::infinity(), settings) == message);
    CHECK(AmountInWords(-0.01, settings).empty());
    CHECK(AmountInWords(std::numeric_limits<double>::quiet_NaN(), settings).empty());
}

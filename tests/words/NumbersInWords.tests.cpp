#include "words/NumbersInWords.h"

#include <doctest/doctest.h>

#include <limits>

#include <iterator>
#include <random>
#include <sstream>
#include <utility>
#include <vector>

using namespace tessarolyne;

namespace {

// Numbers in words a second time: by arithmetic on the value, where the program goes by the digits, and from
// the fewest words that the languages allow.
using Words = std::vector<std::string>;

Words Split(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

std::string FrenchBelowHundred(std::size_t n, bool chBe) {
    static const Words least =
        Split("zéro un deux trois quatre cinq six sept huit neuf dix onze douze treize "
              "quatorze quinze seize dix-sept dix-huit dix-neuf");
    static const Words tens = Split("vingt trente quarante cinquante soixante septante huitante nonante");
    if (n < least.size()) {
        return least[n];
    }
    const bool byTwenties = !chBe && n >= 60;
    const std::size_t base = byTwenties ? n / 20 * 20 : n / 10 * 10;
    const std::size_t rest = n - base;
    const std::string word = byTwenties && base == 80 ? "quatre-vingt" : tens[base / 10 - 2];
    if (rest == 0) {
        return byTwenties && base == 80 ? word + "s" : word;
    }
    return word + (rest % 10 == 1 && base != 80 ? " et " : "-") + FrenchBelowHundred(rest, chBe);
}

std::string FrenchBelowThousand(std::size_t n, bool chBe) {
    if (n < 100) {
        return FrenchBelowHundred(n, chBe);
    }
    const std::string hundreds = n < 200 ? "cent" : FrenchBelowHundred(n / 100, chBe) + " cent";
    return n % 100 > 0 ? hundreds + " " + FrenchBelowHundred(n % 100, chBe) : hundreds + (n < 200 ? "" : "s");
}

std::string PlainFrench(std::size_t n, bool chBe) {
    if (n == 0) {
        return "zéro";
    }
    std::string words;
    for (const auto& [scale, noun] : {std::pair{1'000'000'000U, "milliard"}, {1'000'000U, "million"}}) {
        if (const std::size_t group = n / scale % 1000; group > 0) {
            words += FrenchBelowThousand(group, chBe) + " " + noun + (group > 1 ? "s " : " ");
        }
    }
    if (const std::size_t thousands = n / 1000 % 1000; thousands > 1) {
        std::string group = FrenchBelowThousand(thousands, chBe);
        if (group.ends_with("vingts") || group.ends_with("cents")) {
            group.pop_back(); // the mark is for nouns, and "mille" is none
        }
        words += group + " mille ";
    } else if (thousands == 1) {
        words += "mille ";
    }
    words += n % 1000 > 0 ? FrenchBelowThousand(n % 1000, chBe) : "";
    return words.substr(0, words.find_last_not_of(' ') + 1);
}

std::string PlainEnglish(std::size_t n) {
    static const Words least = Split("zero one two three four five six seven eight nine ten eleven twelve "
                                     "thirteen fourteen fifteen sixteen seventeen eighteen nineteen");
    static const Words tens = Split("twenty thirty forty fifty sixty seventy eighty ninety");
    const auto with = [&](std::size_t scale, const char* noun, const char* link) {
        const std::string words = PlainEnglish(n / scale) + noun;
        return n % scale == 0 ? words : words + link + PlainEnglish(n % scale);
    };
    if (n >= 1000) {
        const std::size_t scale = n < 1'000'000 ? 1000 : 1'000'000;
        return with(scale, scale == 1000 ? " thousand" : " million", n % scale < 100 ? " and " : " ");
    }
    if (n >= 100) {
        return with(100, " hundred", " and ");
    }
    return n < 20 ? least[n] : tens[n / 10 - 2] + (n % 10 > 0 ? " " + least[n % 10] : "");
}

std::string French(const std::string& number, bool chBe = false, const std::string& currency = "euros") {
    return ConvNbreLettresFr(number, chBe, currency, "trop grand");
}

std::string English(const std::string& number) {
    return ConvNbreLettresEn(number, "too large");
}

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

constexpr const char* fr = "fr";
constexpr const char* chBe = "ch be";
constexpr const char* en = "en";

AmountSettings Euros(const char* language, bool hyphens = false, bool capital = false) {
    return {language, "euro", "euros", "centime", "centimes", hyphens, capital, "trop  grand !", {}};
}

} // namespace

TEST_CASE("Every number has the words that a plain speller gives it") {
    for (const std::size_t number : Numbers()) {
        const std::string digits = std::to_string(number);
        const std::string end = number > 0 && number % 1'000'000 == 0 ? " d'" : " ";
        REQUIRE(French(digits, false) == PlainFrench(number, false) + end);
        REQUIRE(French(digits, true) == PlainFrench(number, true) + end);
        REQUIRE(English(digits) == (number < 1'000'000'000 ? PlainEnglish(number) + " " : "too large"));
    }
}

TEST_CASE("A group of more than three digits is reported") {
    std::string told;
    CHECK(Century("1000", 0, 0, [&](std::string_view place) { told = place; }) == "### Error ###");
    CHECK(told.starts_with("Century, hNbre"));
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

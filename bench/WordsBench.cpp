// Time of one number in words, beside ICU's RuleBasedNumberFormat and libnumbertext over the same numbers in
// the same run. The peers spell by interpreted rules for any language; what they show is the order of
// magnitude. Exits with 1 when one of our figures is above the bar.

#include "words/NumbersInWords.h"

#include <Numbertext.hxx>
#include <unicode/rbnf.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <vector>

using namespace tessarolyne;

namespace {

constexpr double bar = 2000; // nanoseconds for one number
constexpr int passes = 20;
constexpr int peerPasses = 2;
constexpr int numbersPerSet = 2000;
constexpr std::string_view tooLarge = "too large";

struct Number {
    std::int64_t value;
    std::string digits;
};

// What an amount has besides its number; the peers, which know no currency, spell it as a second number.
const Number cents{77, "77"};

// As many numbers of each length, since the time goes with the number of groups.
std::vector<Number> Numbers(int mostDigits) {
    std::mt19937_64 random(20261122);
    std::vector<Number> numbers;
    for (int i = 0; i < numbersPerSet; ++i) {
        std::int64_t beyond = 10;
        for (int digits = i % mostDigits; digits > 0; --digits) {
            beyond *= 10;
        }
        const auto value = static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(beyond));
        numbers.push_back({value, std::to_string(value)});
    }
    return numbers;
}

// Nanoseconds for one number in the quickest pass; `spell` gives the length of the words.
template <typename Spell>
double Time(const std::vector<Number>& numbers, int times, Spell spell) {
    double best = std::numeric_limits<double>::infinity();
    for (int pass = 0; pass < times; ++pass) {
        std::size_t length = 0;
        const auto start = std::chrono::steady_clock::now();
        for (const Number& number : numbers) {
            length += spell(number);
        }
        const std::chrono::duration<double, std::nano> spent = std::chrono::steady_clock::now() - start;
        if (length < 3 * numbers.size()) {
            std::fputs("no words came\n", stderr);
            std::exit(2);
        }
        best = std::min(best, spent.count() / static_cast<double>(numbers.size()));
    }
    return best;
}

double TimeOfIcu(const std::vector<Number>& numbers, const char* locale, bool withCents = false) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::RuleBasedNumberFormat format(icu::URBNF_SPELLOUT, icu::Locale(locale), status);
    if (U_FAILURE(status)) {
        std::fprintf(stderr, "ICU: %s\n", u_errorName(status));
        std::exit(2);
    }
    return Time(numbers, peerPasses, [&](const Number& number) {
        icu::UnicodeString words;
        format.format(number.value, words);
        if (withCents) {
            format.format(cents.value, words);
        }
        std::string text;
        return words.toUTF8String(text).size();
    });
}

double TimeOfNumbertext(
    const std::vector<Number>& numbers, const std::string& language, bool withCents = false) {
    Numbertext numbertext;
    numbertext.set_prefix(NUMBERTEXT_DATA);
    if (std::string one = "1"; !numbertext.numbertext(one, language)) {
        std::fprintf(stderr, "libnumbertext: no rules for %s\n", language.c_str());
        std::exit(2);
    }
    return Time(numbers, peerPasses, [&](const Number& number) {
        std::string text = number.digits;
        numbertext.numbertext(text, language);
        if (withCents) {
            std::string more = cents.digits;
            numbertext.numbertext(more, language);
            text += more;
        }
        return text.size();
    });
}

struct Row {
    const char* name;
    double ours;
    double icu;
    double numbertext;
};

AmountSettings Euros() {
    AmountSettings settings;
    settings.singularCurrency = "euro";
    settings.pluralCurrency = "euros";
    settings.singularCents = "centime";
    settings.pluralCents = "centimes";
    settings.hyphens = true;
    settings.capital = true;
    return settings;
}

std::vector<Row> Measure() {
    const std::vector<Number> upToTwelve = Numbers(12);
    const std::vector<Number> upToNine = Numbers(9);
    const std::vector<Number> longest(200, Number{497497497497, "497497497497"});
    const auto french = [](bool chBe) {
        return [chBe](const Number& number) {
            return ConvNbreLettresFr(number.digits, chBe, "euros", tooLarge).size();
        };
    };
    const AmountSettings euros = Euros();
    const auto amount = [&](const Number& number) {
        return AmountInWords(static_cast<double>(number.value) + 0.77, euros).size();
    };
    return {
        {"fr", Time(upToTwelve, passes, french(false)), TimeOfIcu(upToTwelve, "fr"),
            TimeOfNumbertext(upToTwelve, "fr")},
        {"ch be", Time(upToTwelve, passes, french(true)), TimeOfIcu(upToTwelve, "fr_CH"),
            TimeOfNumbertext(upToTwelve, "fr-CH")},
        {"en",
            Time(upToNine, passes,
                [](const Number& number) { return ConvNbreLettresEn(number.digits, tooLarge).size(); }),
            TimeOfIcu(upToNine, "en"), TimeOfNumbertext(upToNine, "en")},
        {"fr, longest", Time(longest, passes, french(false)), TimeOfIcu(longest, "fr"),
            TimeOfNumbertext(longest, "fr")},
        {"fr, amount with cents", Time(upToTwelve, passes, amount), TimeOfIcu(upToTwelve, "fr", true),
            TimeOfNumbertext(upToTwelve, "fr", true)},
    };
}

} // namespace

int main() {
    std::printf("nanoseconds for one number, over %d numbers (bar: %.0f)\n", numbersPerSet, bar);
    std::printf("%-24s %12s %12s %14s\n", "", "Tessarolyne", "ICU", "libnumbertext");
    bool met = true;
    for (const Row& row : Measure()) {
        const bool under = row.ours < bar;
        met = met && under;
        std::printf("%-24s %12.0f %12.0f %14.0f%s\n", row.name, row.ours, row.icu, row.numbertext,
            under ? "" : "  above the bar");
    }
    return met ? EXIT_SUCCESS : EXIT_FAILURE;
}

#pragma once

#include <functional>
#include <string>
#include <string_view>

// Whole numbers in words: `nombre` is decimal digits without sign and leading zeros. Where it has more digits
// than the language goes to, `tooLargeText` stands for the words.
namespace tessarolyne {

// The words of one group of one to three digits, the first of them not 0, with its scale word; with `chBe` of
// Switzerland and Belgium ("septante", "huitante", "nonante"), else of France. `rang` counts groups from the
// right: 1 units, 2 thousands, 3 millions, 4 thousands of millions. No blank at the end.
std::string TrouvNbreLettr(std::string_view tranche, int rang, bool chBe);

// Up to 12 digits in French, ended by one blank; after a whole number of millions by "d'" before a
// `pluralCurrency` that begins with a vowel or "€", else by "de ".
std::string ConvNbreLettresFr(
    std::string_view nombre, bool chBe, std::string_view pluralCurrency, std::string_view tooLargeText);

// Takes the report of an error of the program, for the user to see.
using ErrorReport = std::function<void(std::string_view)>;

// The words of one group of one to three digits, without a scale word and without a blank at the end; empty
// for "000". `position` is the group's place from 0 at the left, `dernier` that of the last group, which
// takes "and" when it has no hundreds and isn't alone. An error text, and a report, for a value above 999,
// which no group of three digits has.
std::string Century(std::string_view tranche, int dernier, int position, const ErrorReport& report = {});

// Up to 9 digits in English, with "and" and without hyphens, ended by one blank.
std::string ConvNbreLettresEn(
    std::string_view nombre, std::string_view tooLargeText, const ErrorReport& report = {});

// How an amount is worded. The currency words are free text and may be empty.
struct AmountSettings {
    std::string language; // "en", "fr" or "ch be"
    std::string singularCurrency;
    std::string pluralCurrency;
    std::string singularCents;
    std::string pluralCents;
    bool hyphens = false; // joins all the words of a number
    bool capital = false; // of the amount's first letter
    std::string tooLargeText;
    ErrorReport report;
};

// A number as an amount of money, for value >= 0: its whole part in words, the currency, its cents in words,
// the cents' word; empty for any other value. The whole part is rounded down and the cents by themselves, so
// that 1.999 has the whole part 1 and the cents 0. A whole part above the language's limit has `tooLargeText`
// in the place of its words, and the currency follows that at once.
std::string AmountInWords(double value, const AmountSettings& settings);

} // namespace tessarolyne

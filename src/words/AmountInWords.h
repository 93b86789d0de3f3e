#pragma once

#include "words/EnglishWords.h"

#include <optional>
#include <string>
#include <string_view>

// A number as an amount of money: its whole part in words, the currency, its cents in words, the cents' word.
// What the main window's controls hold comes in as plain values.
namespace tessarolyne {

enum class WordsLanguage { En, Fr, ChBe };

// The language of the codes "en", "fr" and "ch be"; nothing for any other text.
std::optional<WordsLanguage> WordsLanguageOf(std::string_view code);

// How an amount is worded. The currency words are free text and may be empty.
struct AmountSettings {
    WordsLanguage language = WordsLanguage::Fr;
    std::string singularCurrency;
    std::string pluralCurrency;
    std::string singularCents;
    std::string pluralCents;
    bool hyphens = false; // joins all the words of a number
    bool capital = false; // of the amount's first letter
    std::string tooLargeText;
    ErrorReport report;
};

// The digits of `value` rounded down, without separators, for value >= 0. From 10^18 on the digits no longer
// follow the value: every language has reached its limit long before.
std::string WholePart(double value);

// "0" to "99": the cents of value >= 0, rounded from the double's exact value to two decimals, a half
// upwards. The whole part has no share in it: 1.999 has the whole part "1" and the cents "0".
std::string Cents(double value);

// The amount in words, for value >= 0; empty for any other value. A whole part above the language's limit has
// `tooLargeText` in the place of its words, and the currency follows that at once.
std::string AmountInWords(double value, const AmountSettings& settings);

} // namespace tessarolyne

#pragma once

#include "words/NumbersInWords.h"

#include <string>
#include <string_view>

namespace tessarolyne {

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

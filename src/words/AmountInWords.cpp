#include "words/AmountInWords.h"

#include "platform/Text.h"
#include "words/FrenchWords.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tessarolyne {

namespace {

std::string Words(std::string_view number, const AmountSettings& settings) {
    if (settings.language == WordsLanguage::En) {
        return ConvNbreLettresEn(number, settings.tooLargeText, settings.report);
    }
    const bool chBe = settings.language == WordsLanguage::ChBe;
    return ConvNbreLettresFr(number, chBe, settings.pluralCurrency, settings.tooLargeText);
}

// Whatever stands in the words' place is joined as well; the blank before the currency stays.
void JoinWithHyphens(std::string& words) {
    std::replace(words.begin(), words.end(), ' ', '-');
    if (words.ends_with('-')) {
        words.back() = ' ';
    }
}

// The words of `number` and the noun they count. Zero takes the singular in English too.
std::string Counted(const std::string& number, const std::string& singular, const std::string& plural,
    const AmountSettings& settings) {
    std::string words = Words(number, settings);
    if (settings.hyphens) {
        JoinWithHyphens(words);
    }
    words += number == "0" || number == "1" ? singular : plural;
    return words;
}

} // namespace

std::optional<WordsLanguage> WordsLanguageOf(std::string_view code) {
    if (code == "en") {
        return WordsLanguage::En;
    }
    if (code == "fr") {
        return WordsLanguage::Fr;
    }
    if (code == "ch be") {
        return WordsLanguage::ChBe;
    }
    return std::nullopt;
}

std::string WholePart(double value) {
    return std::to_string(static_cast<std::uint64_t>(std::min(std::floor(value), 1e18)));
}

std::string Cents(double value) {
    // An infinite value has no fraction; its whole part is beyond every limit anyway.
    const double fraction = std::isfinite(value) ? value - std::floor(value) : 0.0;
    // The product rounded to a double and what this rounding took: together they are the exact hundredfold.
    const double hundredfold = fraction * 100.0;
    const double taken = std::fma(fraction, 100.0, -hundredfold);
    const double below = std::floor(hundredfold);
    const double beyond = hundredfold - below;
    const bool up = beyond > 0.5 || (beyond == 0.5 && taken >= 0.0);
    return std::to_string((static_cast<int>(below) + (up ? 1 : 0)) % 100);
}

std::string AmountInWords(double value, const AmountSettings& settings) {
    if (!(value >= 0.0)) {
        return {};
    }
    std::string total =
        Counted(WholePart(value), settings.singularCurrency, settings.pluralCurrency, settings);
    total += ' ';
    total += Counted(Cents(value), settings.singularCents, settings.pluralCents, settings);
    if (settings.capital) {
        const std::string first = Left(total, 1);
        total.replace(0, first.size(), Uppercase(first));
    }
    return total;
}

} // namespace tessarolyne

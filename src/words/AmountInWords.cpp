#include "words/AmountInWords.h"

#include "platform/Numbers.h"
#include "platform/Text.h"

#include <algorithm>
#include <cmath>

namespace tessarolyne {

namespace {

// The words of `number` and the noun they count. Zero takes the singular in English too.
std::string Counted(const std::string& number, const std::string& singular, const std::string& plural,
    const AmountSettings& settings) {
    std::string words = settings.language == "en"
                            ? ConvNbreLettresEn(number, settings.tooLargeText, settings.report)
                            : ConvNbreLettresFr(number, settings.language == "ch be", settings.pluralCurrency,
                                  settings.tooLargeText);
    if (settings.hyphens) { // whatever stands in the words' place is joined as well
        std::ranges::replace(words, ' ', '-');
        if (words.ends_with('-')) {
            words.back() = ' ';
        }
    }
    return words + (number == "0" || number == "1" ? singular : plural);
}

// "0" to "99".
std::string Cents(double value) {
    const std::string shown = Format(value, "0.00");
    return shown.substr(shown.size() - (shown[shown.size() - 2] == '0' ? 1 : 2));
}

} // namespace

std::string AmountInWords(double value, const AmountSettings& settings) {
    if (!(value >= 0.0)) {
        return {};
    }
    const std::string whole = Format(std::floor(value), "0");
    std::string total = Counted(whole, settings.singularCurrency, settings.pluralCurrency, settings) + ' ' +
                        Counted(Cents(value), settings.singularCents, settings.pluralCents, settings);
    if (settings.capital) {
        const std::string first = Left(total, 1);
        total.replace(0, first.size(), Uppercase(first));
    }
    return total;
}

} // namespace tessarolyne

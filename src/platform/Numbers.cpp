#include "platform/Numbers.h"

#include "platform/Text.h"

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cstddef>
#include <cstdlib>
#include <iterator>

namespace tessarolyne {

namespace {

constexpr double largest = std::numeric_limits<double>::max();

std::size_t SkipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && IsDigit(text[at])) {
        ++at;
    }
    return at;
}

std::size_t SkipSign(std::string_view text, std::size_t at) {
    return at < text.size() && (text[at] == '+' || text[at] == '-') ? at + 1 : at;
}

// The length of the exponent that begins at `at`, 0 if there is none.
std::size_t ExponentSize(std::string_view text, std::size_t at) {
    if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) {
        return 0;
    }
    const std::size_t digits = SkipSign(text, at + 1);
    const std::size_t end = SkipDigits(text, digits);
    return end > digits ? end - at : 0;
}

// The length of the number without exponent with which the text begins, 0 if there is none.
std::size_t NumberSize(std::string_view text) {
    const std::size_t start = SkipSign(text, 0);
    std::size_t end = SkipDigits(text, start);
    std::size_t digits = end - start;
    if (end < text.size() && text[end] == '.') {
        const std::size_t behindPoint = SkipDigits(text, end + 1);
        digits += behindPoint - (end + 1);
        end = behindPoint;
    }
    return digits == 0 ? 0 : end;
}

// The value of a text that is a number in full. strtod wants the decimal point of the C locale that is set;
// from_chars, which does not, has no doubles in clang's library.
double ValueOf(std::string_view number) {
    std::string text(number);
    if (const std::size_t point = text.find('.'); point != std::string::npos) {
        text.replace(point, 1, std::localeconv()->decimal_point);
    }
    return std::clamp(std::strtod(text.c_str(), nullptr), -largest, largest);
}

} // namespace

bool IsNumeric(std::string_view text) {
    const std::string number = WithoutBlanks(text);
    return !number.empty() && NumberSize(number) == number.size();
}

double CDbl(std::string_view text) {
    return IsNumeric(text) ? ValueOf(WithoutBlanks(text)) : 0;
}

double Val(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const std::size_t size = NumberSize(text);
    return size > 0 ? ValueOf(text.substr(0, size + ExponentSize(text, size))) : 0;
}

std::string Format(double value, std::string_view mask) {
    double whole = 0;
    const double fraction = std::modf(std::isnan(value) ? 0 : std::min(std::fabs(value), largest), &whole);
    const bool hasDecimals = mask.ends_with(".00");
    const double scale = hasDecimals ? 100 : 1;
    // The product is rounded already: the sign of fma's exact one tells on which side of the half it is.
    double parts = std::floor(fraction * scale);
    parts += std::fma(fraction, scale, -(parts + 0.5)) >= 0 ? 1 : 0;
    if (parts == scale) {
        whole += 1;
        parts = 0;
    }
    char digits[std::numeric_limits<double>::max_exponent10 + 1];
    std::string text(digits, std::to_chars(digits, std::end(digits), whole, std::chars_format::fixed, 0).ptr);
    if (whole == 0 && mask.find('0') == std::string_view::npos) {
        text.clear();
    }
    auto groups = std::count(mask.begin(), mask.end(), '\\');
    for (std::size_t behind = 3; groups > 0 && behind < text.size(); behind += 4, --groups) {
        text.insert(text.size() - behind, 1, ' ');
    }
    if (hasDecimals) {
        text += std::to_string(100 + static_cast<int>(parts)).replace(0, 1, ".");
    }
    return mask.starts_with('-') && value < 0 && whole + parts > 0 ? "-" + text : text;
}

} // namespace tessarolyne

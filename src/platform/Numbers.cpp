#include "platform/Numbers.h"

#include "platform/Text.h"

#include <algorithm>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <utility>
#include <vector>

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

// The first `kept` digits, rounded up where the first one left out is 5 or more.
std::string RoundedAt(std::string digits, std::size_t kept) {
    const bool up = digits[kept] >= '5';
    digits.resize(kept);
    if (!up) {
        return digits;
    }
    digits.insert(digits.begin(), '0'); // where the carry of all nines goes
    std::size_t i = digits.size() - 1;
    for (; digits[i] == '9'; --i) {
        digits[i] = '0';
    }
    ++digits[i];
    return digits;
}

// The digits of a finite number that isn't negative, without the point, rounded half away from zero; the last
// `decimals` of them stand behind the point. Zeros may stand at the front.
std::string RoundedDigits(double value, std::size_t decimals) {
    constexpr double exactBelow = 9007199254740992.0; // 2 to the power 53
    if (value < exactBelow && value == std::trunc(value)) {
        return std::to_string(static_cast<std::uint64_t>(value)).append(decimals, '0');
    }
    int exponent = 0;
    std::frexp(value, &exponent);
    // Each binary place behind the point is one decimal place of the exact value.
    const int exactDecimals = std::max(0, std::numeric_limits<double>::digits - exponent);
    char buffer[1500]; // 309 digits before the point or 1126 behind it are the most
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, exactDecimals);
    std::string digits(buffer, written.ptr);
    std::erase(digits, '.');
    const auto exact = static_cast<std::size_t>(exactDecimals);
    if (exact <= decimals) {
        return digits.append(decimals - exact, '0');
    }
    const std::size_t kept = digits.size() - (exact - decimals);
    return RoundedAt(std::move(digits), kept);
}

// A character of a mask: itself, or a place for a digit.
struct MaskItem {
    enum Kind { literal, point, placeBeforePoint, placeBehindPoint };
    char character;
    Kind kind;
};

// What a mask says, from left to right, without the minus at its front.
struct ParsedMask {
    bool showsMinus = false;
    std::size_t decimals = 0;
    std::vector<MaskItem> items;
};

ParsedMask Parse(std::string_view mask) {
    ParsedMask parsed;
    parsed.showsMinus = mask.starts_with('-');
    parsed.items.reserve(mask.size());
    auto place = MaskItem::placeBeforePoint;
    for (std::size_t i = parsed.showsMinus ? 1 : 0; i < mask.size(); ++i) {
        const bool escaped = mask[i] == '\\' && i + 1 < mask.size();
        const char character = escaped ? mask[++i] : mask[i];
        if (!escaped && character == '.') {
            place = MaskItem::placeBehindPoint;
            parsed.items.push_back({character, MaskItem::point});
        } else if (!escaped && (character == '#' || character == '0')) {
            parsed.decimals += place == MaskItem::placeBehindPoint;
            parsed.items.push_back({character, place});
        } else {
            parsed.items.push_back({character, MaskItem::literal});
        }
    }
    return parsed;
}

char TakeLast(std::string& digits) {
    const char digit = digits.back();
    digits.pop_back();
    return digit;
}

// The mask with the digits in its places. `whole` has no zeros at its front.
std::string Fill(const ParsedMask& mask, std::string whole, std::string fraction, bool minus) {
    std::string reversed;
    std::size_t pastDigits = 0;
    for (auto item = mask.items.rbegin(); item != mask.items.rend(); ++item) {
        if (item->kind == MaskItem::literal || item->kind == MaskItem::point) {
            reversed += item->character;
            pastDigits = item->kind == MaskItem::point ? reversed.size() : pastDigits;
            continue;
        }
        std::string& digits = item->kind == MaskItem::placeBehindPoint ? fraction : whole;
        if (digits.empty() && item->character == '#') {
            continue;
        }
        reversed += digits.empty() ? '0' : TakeLast(digits);
        pastDigits = reversed.size();
    }
    if (!whole.empty()) {
        // More digits than places: they stand before the first place, not before the literals around it.
        reversed.insert(pastDigits, std::string(whole.rbegin(), whole.rend()));
        pastDigits += whole.size();
    }
    if (minus) {
        reversed.insert(pastDigits, 1, '-');
    }
    return std::string(reversed.rbegin(), reversed.rend());
}

// The nearest value that an integer type has; 0 for a NaN. The bounds are compared as doubles: the upper one
// is the power of two just above the largest value, which a double holds exactly.
template <std::integral Integer>
Integer Saturated(double value) {
    using Limits = std::numeric_limits<Integer>;
    if (std::isnan(value)) {
        return 0;
    }
    if (value <= static_cast<double>(Limits::min())) {
        return Limits::min();
    }
    if (value >= std::ldexp(1.0, Limits::digits)) {
        return Limits::max();
    }
    return static_cast<Integer>(value);
}

} // namespace

bool IsNumeric(std::string_view text) {
    const std::string number = WithoutBlanks(text);
    return !number.empty() && NumberSize(number) == number.size();
}

double CDbl(std::string_view text) {
    const std::string number = WithoutBlanks(text);
    return !number.empty() && NumberSize(number) == number.size() ? ValueOf(number) : 0;
}

double Val(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const std::size_t size = NumberSize(text);
    return size > 0 ? ValueOf(text.substr(0, size + ExponentSize(text, size))) : 0;
}

double Round(double value) {
    return std::round(value);
}

std::string Format(double value, std::string_view mask) {
    const ParsedMask parsed = Parse(mask);
    const double magnitude = std::isnan(value) ? 0 : std::min(std::fabs(value), largest);
    const std::string digits = RoundedDigits(magnitude, parsed.decimals);
    const std::size_t point = digits.size() - parsed.decimals;
    const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size());
    const bool minus = parsed.showsMinus && value < 0 && first < digits.size();
    const std::size_t wholeFrom = std::min(first, point);
    return Fill(parsed, digits.substr(wholeFrom, point - wholeFrom), digits.substr(point), minus);
}

std::uint64_t ToUInt64(double value) {
    return Saturated<std::uint64_t>(value);
}

std::int32_t ToInt32(double value) {
    return Saturated<std::int32_t>(value);
}

std::int16_t ToInt16(double value) {
    return Saturated<std::int16_t>(value);
}

} // namespace tessarolyne

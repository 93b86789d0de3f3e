#include "conversion/PastedNumber.h"

#include "platform/Ascii.h"
#include "platform/Text.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <cstddef>

namespace tessarolyne {

namespace {

// The line ends that Unicode calls mandatory: LF, VT, FF, CR, NEL, line and paragraph separator.
bool IsLineEnd(char32_t code) {
    return (code >= 0x0A && code <= 0x0D) || code == 0x85 || code == 0x2028 || code == 0x2029;
}

// The tab and Unicode's space separators.
bool IsBlank(char32_t code) {
    return code == 0x09 || code == ' ' || code == 0xA0 || code == 0x1680 ||
           (code >= 0x2000 && code <= 0x200A) || code == 0x202F || code == 0x205F || code == 0x3000;
}

// The text without line ends, with `blank` for each blank.
std::string WithBlanksAs(std::string_view text, std::string_view blank) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Character character = CharacterAt(text, at);
        if (IsBlank(character.code)) {
            result += blank;
        } else if (!IsLineEnd(character.code)) {
            result += text.substr(at, character.size);
        }
        at += character.size;
    }
    return result;
}

// The text without the apostrophes that stand between two digits.
std::string WithoutGroupApostrophes(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool group =
            text[i] == '\'' && i > 0 && IsDigit(text[i - 1]) && i + 1 < text.size() && IsDigit(text[i + 1]);
        if (!group) {
            result += text[i];
        }
    }
    return result;
}

// The text without what stands before and behind its digits, such as a currency. A sign and a decimal sign
// beside them stay, but for the point of an abbreviation: "Fr. 12.50".
std::string_view WithoutSurroundings(std::string_view text) {
    const auto isPart = [&](std::size_t at, std::string_view parts) {
        return at < text.size() && parts.find(text[at]) != std::string_view::npos;
    };
    std::size_t begin = text.find_first_of("0123456789");
    if (begin == std::string_view::npos) {
        return text;
    }
    std::size_t end = text.find_last_of("0123456789") + 1;
    end += isPart(end, ".,");
    const bool abbreviates = begin > 1 && IsLetter(text[begin - 2]);
    begin -= isPart(begin - 1, ".,") && !abbreviates;
    begin -= isPart(begin - 1, "+-");
    return text.substr(begin, end - begin);
}

// Where the decimal sign stands: the last comma or point, if it comes once; else the text's size.
std::size_t DecimalSignAt(std::string_view text) {
    const std::size_t at = text.find_last_of(".,");
    const bool isOne = at != std::string_view::npos && std::count(text.begin(), text.end(), text[at]) == 1;
    return isOne ? at : text.size();
}

// Whether these are digits only, or groups of three with one kind of separator between them. The first group
// of several has one to three digits and doesn't begin with 0: "0.123" is no thousands.
bool IsWhole(std::string_view text) {
    const std::size_t first = std::min(text.find_first_of(".,"), text.size());
    if (first == text.size()) {
        return std::all_of(text.begin(), text.end(), IsDigit);
    }
    const char separator = text[first];
    if (first == 0 || first > 3 || text[0] == '0' || (text.size() - first) % 4 != 0) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool separates = i >= first && (i - first) % 4 == 0;
        if (separates ? text[i] != separator : !IsDigit(text[i])) {
            return false;
        }
    }
    return true;
}

} // namespace

std::string NumberAsWritten(std::string_view pasted) {
    const std::string bare = ReplaceAll(ReplaceAll(WithBlanksAs(pasted, ""), "’", "'"), "−", "-");
    std::string number = WithoutGroupApostrophes(WithoutSurroundings(bare));
    std::string sign;
    if (number.starts_with('-') || number.starts_with('+')) {
        sign = number[0];
        number.erase(0, 1);
    }
    const std::size_t decimalSign = IsWhole(number) ? number.size() : DecimalSignAt(number);
    std::string whole = number.substr(0, decimalSign);
    std::string decimals = number.substr(decimalSign);
    if (number.empty() || !IsWhole(whole) ||
        !std::all_of(decimals.begin() + (decimals.empty() ? 0 : 1), decimals.end(), IsDigit)) {
        return std::string(pasted);
    }
    std::erase_if(whole, [](char c) { return !IsDigit(c); });
    if (!decimals.empty()) {
        decimals[0] = '.';
    }
    return sign + whole + decimals;
}

std::string DigitsAsPasted(std::string_view text) {
    return WithBlanksAs(text, " ");
}

} // namespace tessarolyne

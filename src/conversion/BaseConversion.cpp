#include "conversion/BaseConversion.h"

#include "platform/Numbers.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

namespace tessarolyne {

namespace {

constexpr std::uint64_t largestValue = std::numeric_limits<std::uint64_t>::max();

constexpr std::size_t noDigit = std::u32string::npos;

// The characters of an alphabet as digits, for writing and, whatever their case, for reading.
class Digits {
public:
    explicit Digits(std::string_view alphabet) {
        for (std::size_t at = 0; at < alphabet.size();) {
            const Character character = CharacterAt(alphabet, at);
            texts_.push_back(alphabet.substr(at, character.size));
            codes_ += UppercaseOf(character.code);
            at += character.size;
        }
        asciiValues_.fill(noDigit);
        for (std::size_t digit = codes_.size(); digit-- > 0;) { // the first of two equal characters counts
            const char32_t code = codes_[digit];
            if (code < asciiValues_.size()) {
                asciiValues_[code] = digit;
                asciiValues_[code >= 'A' && code <= 'Z' ? code - 'A' + 'a' : code] = digit;
            }
        }
    }

    std::size_t Count() const { return texts_.size(); }

    std::string_view Text(std::size_t digit) const { return texts_[digit]; }

    // The value of the digit with this code, or noDigit. Digits are ASCII as a rule; their table is what
    // keeps a megabyte of them to a few milliseconds.
    std::size_t Value(char32_t code) const {
        return code < asciiValues_.size() ? asciiValues_[code] : codes_.find(UppercaseOf(code));
    }

private:
    std::vector<std::string_view> texts_;
    std::u32string codes_;
    std::array<std::size_t, 128> asciiValues_;
};

// Value times base plus digit, or the largest value where that doesn't fit.
std::uint64_t NextValue(std::uint64_t value, std::uint64_t base, std::uint64_t digit) {
    return value > (largestValue - digit) / base ? largestValue : value * base + digit;
}

// Nothing for a text with a character outside the base, wherever it stands.
std::optional<std::uint64_t> ReadInAlphabet(std::string_view nombre, std::size_t base, const Digits& digits) {
    std::uint64_t value = 0;
    for (std::size_t at = 0; at < nombre.size();) {
        const Character character = CharacterAt(nombre, at);
        const std::size_t digit = digits.Value(character.code);
        if (digit == noDigit || digit >= base) {
            return std::nullopt;
        }
        value = NextValue(value, base, digit);
        at += character.size;
    }
    return value;
}

std::optional<std::uint64_t> ReadDecimal(std::string_view nombre) {
    if (!IsNumeric(nombre)) {
        return std::nullopt;
    }
    const double value = CDbl(nombre);
    return value <= -1 ? largestValue : ToUInt64(value);
}

std::string WriteInAlphabet(std::uint64_t value, std::size_t base, const Digits& digits) {
    std::vector<std::string_view> fromRight;
    do {
        fromRight.push_back(digits.Text(value % base));
        value /= base;
    } while (value > 0);
    std::string result;
    std::for_each(fromRight.rbegin(), fromRight.rend(), [&](std::string_view digit) { result += digit; });
    return result;
}

} // namespace

std::string ConvNbreBase(
    std::string_view nombre, int baseOrg, int baseDest, std::string_view alphabet, const ErrorTexts& errors) {
    const Digits digits(alphabet);
    const auto isBase = [&](int base) {
        return base >= 2 && static_cast<std::size_t>(base) <= digits.Count();
    };
    if (!isBase(baseOrg) || !isBase(baseDest)) {
        return errors.errBase;
    }
    const auto value = baseOrg == 10 ? ReadDecimal(nombre)
                                     : ReadInAlphabet(nombre, static_cast<std::size_t>(baseOrg), digits);
    if (!value) {
        return errors.errNbre;
    }
    return baseDest == 10 ? Str(*value) : WriteInAlphabet(*value, static_cast<std::size_t>(baseDest), digits);
}

} // namespace tessarolyne

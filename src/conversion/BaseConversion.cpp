#include "conversion/BaseConversion.h"

#include "platform/Numbers.h"
#include "platform/Text.h"
#include "ui/Localisation.h"
#include "ui/WrittenNumber.h"

#include <cstdint>
#include <limits>

namespace tessarolyne {

namespace {

constexpr std::uint64_t largestValue = std::numeric_limits<std::uint64_t>::max();

std::string_view DigitsOf(int base, std::string_view alphabet) {
    return (base == 10 ? alphabet09AZ : alphabet).substr(0, static_cast<std::size_t>(base));
}

// Nothing for a text with a character outside the digits, wherever it stands.
std::optional<std::uint64_t> Read(std::string_view nombre, std::string_view digits) {
    std::uint64_t value = 0;
    for (const char c : Uppercase(nombre)) {
        const std::size_t digit = digits.find(c);
        if (digit == std::string_view::npos) {
            return std::nullopt;
        }
        const bool fits = value <= (largestValue - digit) / digits.size();
        value = fits ? value * digits.size() + digit : largestValue;
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

std::string Write(std::uint64_t value, std::string_view digits) {
    std::string result;
    do {
        result.insert(0, 1, digits[static_cast<std::size_t>(value % digits.size())]);
        value /= digits.size();
    } while (value > 0);
    return result;
}

// How many characters of the text are the prefix of its base.
std::size_t PrefixSize(std::string_view text, int base) {
    if (base == 16 && text.starts_with('#')) {
        return 1;
    }
    const std::string prefix = Uppercase(PrefixOf(base));
    return Uppercase(text).starts_with(prefix) ? prefix.size() : 0;
}

} // namespace

std::string ConvNbreBase(std::string_view nombre, int baseOrg, int baseDest, std::string_view alphabet) {
    for (const int base : {baseOrg, baseDest}) {
        if (base < smallestBase || base > static_cast<int>(alphabet.size())) {
            return Localisation::Txt_ErrBase();
        }
    }
    const auto value = baseOrg == 10 ? ReadDecimal(nombre) : Read(nombre, DigitsOf(baseOrg, alphabet));
    return value ? Write(*value, DigitsOf(baseDest, alphabet)) : Localisation::Txt_ErrNbre();
}

std::string_view PrefixOf(int base) {
    return base == 2 ? "0b" : base == 8 ? "0o" : base == 16 ? "0x" : "";
}

bool IsErrorText(std::string_view text) {
    return text == Localisation::Txt_ErrNbre() || text == Localisation::Txt_ErrBase();
}

// The letters-first alphabet has other digits than those that the prefixes announce, "H" among them.
std::string BareDigits(std::string_view text, int base, std::string_view alphabet) {
    std::string digits = WithPlainSigns(text);
    std::erase_if(digits, [](char c) { return std::string_view(" _:'").find(c) != std::string_view::npos; });
    if (alphabet != alphabet09AZ) {
        return digits;
    }
    const std::size_t prefix = PrefixSize(digits, base);
    const bool endsInH = base == 16 && prefix == 0 && digits.size() > 1 && Uppercase(digits).ends_with('H');
    return digits.substr(prefix, digits.size() - prefix - (endsInH ? 1 : 0));
}

bool AreDigits(std::string_view digits, int base, std::string_view alphabet) {
    return Uppercase(digits).find_first_not_of(DigitsOf(base, alphabet)) == std::string::npos;
}

std::optional<std::string> DigitsAsPasted(std::string_view pasted, int base, std::string_view alphabet) {
    const std::string digits = BareDigits(Trimmed(pasted), base, alphabet);
    return digits.empty() || !AreDigits(digits, base, alphabet) ? std::nullopt : std::optional(digits);
}

} // namespace tessarolyne

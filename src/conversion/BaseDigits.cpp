#include "conversion/BaseDigits.h"

#include "conversion/BaseConversion.h"
#include "platform/Text.h"
#include "ui/WrittenNumber.h"

#include <algorithm>

namespace tessarolyne {

namespace {

bool BeginsWith(std::string_view text, std::string_view prefix) {
    return Uppercase(text.substr(0, prefix.size())) == prefix;
}

// How many characters of the text are the prefix of its base.
std::size_t PrefixSize(std::string_view text, int base) {
    switch (base) {
    case 2:
        return BeginsWith(text, "0B") ? 2 : 0;
    case 8:
        return BeginsWith(text, "0O") ? 2 : 0;
    case 16:
        return BeginsWith(text, "0X") ? 2 : text.starts_with('#') ? 1 : 0;
    default:
        return 0;
    }
}

// The letters-first alphabet has other digits than those that the prefixes announce, "H" among them.
std::string_view WithoutNotation(std::string_view text, int base) {
    const std::size_t prefix = PrefixSize(text, base);
    const bool endsInH =
        base == 16 && prefix == 0 && text.size() > 1 && BeginsWith(text.substr(text.size() - 1), "H");
    text.remove_prefix(prefix);
    text.remove_suffix(endsInH ? 1 : 0);
    return text;
}

} // namespace

std::string BareDigits(std::string_view text, int base, std::string_view alphabet) {
    std::string digits = WithPlainSigns(text);
    std::erase_if(digits, [](char c) { return std::string_view(" _:'").find(c) != std::string_view::npos; });
    return alphabet == alphabet09AZ ? std::string(WithoutNotation(digits, base)) : digits;
}

bool AreDigits(std::string_view digits, int base, std::string_view alphabet) {
    const std::string_view all = base == 10 ? alphabet09AZ : alphabet;
    const std::string_view known = all.substr(0, static_cast<std::size_t>(base));
    return Uppercase(digits).find_first_not_of(known) == std::string::npos;
}

std::optional<std::string> DigitsAsPasted(std::string_view pasted, int base, std::string_view alphabet) {
    constexpr std::string_view around = " \t\n\v\f\r";
    const std::size_t first = std::min(pasted.find_first_not_of(around), pasted.size());
    const std::size_t last = pasted.find_last_not_of(around);
    pasted = pasted.substr(first, last == std::string_view::npos ? 0 : last + 1 - first);
    const std::string digits = BareDigits(pasted, base, alphabet);
    return digits.empty() || !AreDigits(digits, base, alphabet) ? std::nullopt : std::optional(digits);
}

} // namespace tessarolyne

#include "ui/SafeAddress.h"

#include "platform/Text.h"

#include <algorithm>

namespace tessarolyne {

namespace {

constexpr std::string_view unsecuredWeb = "http://";
constexpr std::string_view securedWeb = "https://";
constexpr std::string_view mail = "mailto:";

bool IsHexDigit(char c) {
    return IsDigit(c) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

// Letters, digits and those marks.
bool ConsistsOf(std::string_view text, std::string_view marks) {
    return std::ranges::all_of(
        text, [&](char c) { return IsDigit(c) || IsLetter(c) || marks.find(c) != std::string_view::npos; });
}

// What may follow the host or "mailto:". A backslash isn't among it: browsers read it as a slash, so that it
// could part off another host than the one seen here.
bool HasOnlyAddressCharacters(std::string_view text) {
    for (std::size_t at = text.find('%'); at != std::string_view::npos; at = text.find('%', at + 1)) {
        if (at + 2 >= text.size() || !IsHexDigit(text[at + 1]) || !IsHexDigit(text[at + 2])) {
            return false;
        }
    }
    return ConsistsOf(text, "-._~:/?#@!$&'()*+,;=%") && std::ranges::count(text, '#') <= 1;
}

// The number whose decimal digits these are; -1 for any other text, and beyond `largest`.
int NumberUpTo(int largest, std::string_view digits) {
    int value = digits.empty() ? -1 : 0;
    for (const char c : digits) {
        value = IsDigit(c) && value >= 0 ? value * 10 + (c - '0') : -1;
        if (value > largest) {
            return -1;
        }
    }
    return value;
}

// Four numbers up to 255 without leading zeros.
bool IsDottedNumber(std::string_view host) {
    for (int parts = 1;; ++parts) {
        const auto part = host.substr(0, host.find('.'));
        if (NumberUpTo(255, part) < 0 || (part.size() > 1 && part.front() == '0')) {
            return false;
        }
        if (part.size() == host.size()) {
            return parts == 4;
        }
        host.remove_prefix(part.size() + 1);
    }
}

// Whether browsers take the host for a number (WHATWG URL): its last label is one, maybe in hexadecimal.
bool EndsInNumber(std::string_view host) {
    const auto label = host.substr(host.rfind('.') + 1);
    const bool hexadecimal = label.starts_with("0x") || label.starts_with("0X");
    const auto digits = label.substr(hexadecimal ? 2 : 0);
    return std::all_of(digits.begin(), digits.end(), hexadecimal ? IsHexDigit : IsDigit);
}

// A name of the domain system: labels of letters, digits, hyphens and underscores. Or a number, but only as
// everybody writes it: 2130706433, 0177.1 and 0x7f.1 lead to 127.0.0.1 too, and don't look like it.
bool IsHostName(std::string_view host) {
    if (IsDottedNumber(host)) {
        return true;
    }
    if (host.ends_with('.')) {
        host.remove_suffix(1);
    }
    return !EndsInNumber(host) && ConsistsOf(host, "-_.") && !host.starts_with('.') &&
           host.find("..") == std::string_view::npos;
}

bool IsNumberInBrackets(std::string_view host) {
    return host.size() >= 4 && host.starts_with('[') && host.ends_with(']') &&
           host.find_first_not_of("0123456789ABCDEFabcdef:.", 1) == host.size() - 1;
}

// Host and port. User information would show as an "@" here, which neither may hold.
bool IsAuthority(std::string_view authority) {
    const auto bracket = authority.rfind(']');
    const auto colon = authority.find(':', bracket == std::string_view::npos ? 0 : bracket);
    const auto host = authority.substr(0, colon);
    if (colon != std::string_view::npos && NumberUpTo(65535, authority.substr(colon + 1)) < 1) {
        return false;
    }
    return IsHostName(host) || IsNumberInBrackets(host);
}

bool IsWebAddress(std::string_view address, std::string_view scheme) {
    if (address.size() > longestAddress || !address.starts_with(scheme)) {
        return false;
    }
    address.remove_prefix(scheme.size());
    const auto end = std::min(address.size(), address.find_first_of("/?#"));
    return IsAuthority(address.substr(0, end)) && HasOnlyAddressCharacters(address.substr(end));
}

} // namespace

bool IsSafeAddress(std::string_view address) {
    const bool isMail = address.starts_with(mail) && address.size() > mail.size() &&
                        address.size() <= longestAddress &&
                        HasOnlyAddressCharacters(address.substr(mail.size()));
    return isMail || IsWebAddress(address, unsecuredWeb) || IsWebAddress(address, securedWeb);
}

} // namespace tessarolyne

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

bool IsLetterOrDigit(char c) {
    return IsDigit(c) || IsLetter(c);
}

// What may follow the host or "mailto:". A backslash isn't among it: browsers read it as a slash, so that it
// could part off another host than the one seen here.
bool HasOnlyAddressCharacters(std::string_view text) {
    constexpr std::string_view marks = "-._~:/?#@!$&'()*+,;=";
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%') {
            if (i + 2 >= text.size() || !IsHexDigit(text[i + 1]) || !IsHexDigit(text[i + 2])) {
                return false;
            }
        } else if (!IsLetterOrDigit(text[i]) && marks.find(text[i]) == std::string_view::npos) {
            return false;
        }
    }
    return std::count(text.begin(), text.end(), '#') <= 1;
}

// Four numbers up to 255 without leading zeros.
bool IsDottedNumber(std::string_view host) {
    constexpr int largest = 255;
    int parts = 0;
    for (std::size_t end = 0; end != std::string_view::npos; ++parts) {
        end = host.find('.');
        const auto part = host.substr(0, end);
        int value = 0;
        for (const char c : part.substr(0, 4)) {
            value = IsDigit(c) ? value * 10 + (c - '0') : largest + 1;
        }
        if (part.empty() || value > largest || (part.size() > 1 && part.front() == '0')) {
            return false;
        }
        host.remove_prefix(end == std::string_view::npos ? 0 : end + 1);
    }
    return parts == 4;
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
    if (EndsInNumber(host)) {
        return false;
    }
    bool inLabel = false;
    for (const char c : host) {
        if (c == '.' && inLabel) {
            inLabel = false;
        } else if (IsLetterOrDigit(c) || c == '-' || c == '_') {
            inLabel = true;
        } else {
            return false;
        }
    }
    return inLabel;
}

bool IsNumberInBrackets(std::string_view host) {
    if (host.size() < 4 || host.front() != '[' || host.back() != ']') {
        return false;
    }
    host = host.substr(1, host.size() - 2);
    return std::all_of(
        host.begin(), host.end(), [](char c) { return IsHexDigit(c) || c == ':' || c == '.'; });
}

bool IsPort(std::string_view port) {
    constexpr int largest = 65535;
    int value = 0;
    for (const char c : port) {
        value = IsDigit(c) ? value * 10 + (c - '0') : largest + 1;
        if (value > largest) {
            return false;
        }
    }
    return value > 0;
}

// Host and port. User information would show as an "@" here, which neither may hold.
bool IsAuthority(std::string_view authority) {
    const auto bracket = authority.rfind(']');
    const auto colon = authority.find(':', bracket == std::string_view::npos ? 0 : bracket);
    const auto host = authority.substr(0, colon);
    if (colon != std::string_view::npos && !IsPort(authority.substr(colon + 1))) {
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

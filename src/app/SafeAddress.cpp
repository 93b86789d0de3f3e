#include "app/SafeAddress.h"

#include "platform/Ascii.h"

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

// A name of the domain system or a number with dots: labels of letters, digits, hyphens and underscores.
bool IsHostName(std::string_view host) {
    if (host.ends_with('.')) {
        host.remove_suffix(1);
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
    return IsWebAddress(address, unsecuredWeb);
}

bool IsSafeOwnAddress(std::string_view address) {
    const bool isMail = address.starts_with(mail) && address.size() > mail.size() &&
                        address.size() <= longestAddress &&
                        HasOnlyAddressCharacters(address.substr(mail.size()));
    return isMail || IsWebAddress(address, unsecuredWeb) || IsWebAddress(address, securedWeb);
}

} // namespace tessarolyne

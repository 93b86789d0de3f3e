#pragma once

namespace tessarolyne {

// What a character of ASCII is, whatever the locale of the process; no for any other byte.

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

} // namespace tessarolyne

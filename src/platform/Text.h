#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The framework's text functions, on UTF-8. Positions and lengths count characters, and the first position is
// 1. Any argument is allowed: what lies outside the text is nothing. Time is linear in the text, and in
// ReplaceAll and Split for the short patterns that they are given.
namespace tessarolyne {

// What a character of ASCII is, whatever the locale of the process; no for any other byte.

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// One character of a text: a Unicode code point, or a byte that is no part of valid UTF-8. Such a byte counts
// as a character of its own, with a code above Unicode's, so that it equals no real character and can be
// written back as it was.
struct Character {
    char32_t code;
    std::size_t size; // in bytes, 1 to 4
};

// The character that begins at byte `at`, which must be below the text's size. Overlong forms, surrogates and
// codes above U+10FFFF aren't valid.
Character CharacterAt(std::string_view text, std::size_t at);

// The text with the capitals of its letters of ASCII, Latin-1 and Latin Extended-A, where both are in this
// range; any other character unchanged. So "ß", "ı" and "ſ" stay as they are and never pass for "SS", "I" and
// "S".
std::string Uppercase(std::string_view text);

// The text with U+FFFD for each byte that is no part of valid UTF-8. For text from outside that is to be
// shown, not for names of files.
std::string WithoutInvalidUtf8(std::string_view text);

// The end of a line in texts that the program makes for a window.
inline constexpr std::string_view endOfLine = "\n";

// The number of characters.
std::int64_t Len(std::string_view text);

// The characters from `start` on, at most `length` of them; a start below 1 is 1.
std::string Mid(std::string_view text, std::int64_t start, std::int64_t length = INT64_MAX);

// The first `length` characters.
std::string Left(std::string_view text, std::int64_t length);

// The text with each `find`, which isn't empty, replaced from left to right. Compares bytes: case counts.
std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view with);

// The text without blanks (U+0020 only) at both ends, anywhere.
std::string Trim(std::string_view text);
std::string WithoutBlanks(std::string_view text);

// The pieces into which the delimiters, which aren't empty, cut the text: one more than there are delimiters.
// Compares bytes.
std::vector<std::string_view> Split(std::string_view text, std::string_view delimiter);

// The character of ASCII with this code.
inline std::string Chr(char code) {
    return std::string(1, code);
}

// Whether the key, as controls are told it, is Return or Enter.
inline bool IsReturn(std::string_view key) {
    return key == "\r" || key == "\3";
}

// The bytes of the text as a piece of an address: all but the unreserved characters of RFC 3986 as "%20".
std::string EncodeURLComponent(std::string_view text);

// The text for a field of one line: without the line ends and other controls around it, and with one blank
// for each run of them within.
std::string OneLine(std::string_view text);

// The text with each CR LF, CR and LF replaced by `ending`.
std::string ReplaceLineEndings(std::string_view text, std::string_view ending);

} // namespace tessarolyne

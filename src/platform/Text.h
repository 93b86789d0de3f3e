#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarolyne {

// What a character of ASCII is, whatever the locale of the process; no for any other byte.

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// The framework's text functions, on UTF-8. Positions and lengths count characters (code points; a byte that
// isn't valid UTF-8 is a character too and is kept), and the first position is 1. Any argument is allowed:
// what lies outside the text is nothing. Time is linear in the text, and in ReplaceAll and the fields for the
// short patterns that they are given.
// The end of a line in texts that the program makes for a window.
inline constexpr std::string_view endOfLine = "\n";

// The number of characters.
std::int64_t Len(std::string_view text);

// The characters from `start` on, at most `length` of them; a start below 1 is 1.
std::string Mid(std::string_view text, std::int64_t start);
std::string Mid(std::string_view text, std::int64_t start, std::int64_t length);

// The first `length` characters.
std::string Left(std::string_view text, std::int64_t length);

// The text with each `find` replaced, from left to right. Compares bytes, so that case counts; an empty
// `find` changes nothing.
std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view with);

// The text without blanks (U+0020 only) at the left end, at both ends, anywhere.
std::string LTrim(std::string_view text);
std::string Trim(std::string_view text);
std::string WithoutBlanks(std::string_view text);

// The number of pieces into which the delimiters cut the text: one more than there are delimiters. Compares
// bytes; an empty delimiter cuts nothing.
std::int64_t CountFields(std::string_view text, std::string_view delimiter);

// The piece with this number, from 1; empty where there is none.
std::string NthField(std::string_view text, std::string_view delimiter, std::int64_t field);

// The text with its letters of ASCII, Latin-1 and Latin Extended-A as capitals ("ß" has none and stays).
std::string Uppercase(std::string_view text);

// The character with this code; U+FFFD for a code that Unicode doesn't have.
std::string Chr(std::int64_t code);

// The bytes of the text as a piece of an address: all but the unreserved characters of RFC 3986, and those in
// `alsoKept`, as "%20".
std::string EncodeURLComponent(std::string_view text, std::string_view alsoKept = {});

// The text for a field of one line: without the line ends and other controls around it, and with one blank
// for each run of them within.
std::string OneLine(std::string_view text);

// The text with each CR LF, CR and LF replaced by `ending`.
std::string ReplaceLineEndings(std::string_view text, std::string_view ending);

} // namespace tessarolyne

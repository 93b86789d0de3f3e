#pragma once

#include <string>
#include <string_view>

// The first letter of a UTF-8 text and its capital, by a mapping of our own: the process's locale, which
// another part of the program may set, has no say in an amount.
namespace tessarolyne {

// The first code point of `text`; its first byte where that begins no whole code point, and empty for an
// empty text.
std::string_view FirstLetter(std::string_view text);

// The capital of one code point of ASCII, Latin-1 or Latin Extended-A; everything else comes back as it is,
// and so does a letter whose capital is more than one letter ("ß", "ŉ").
std::string UpperCaseLetter(std::string_view letter);

} // namespace tessarolyne

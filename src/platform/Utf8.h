#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessarolyne {

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

// Puts the character with this code, as CharacterAt gives it, at the end of the text.
void AppendCharacter(std::string& text, char32_t code);

// The upper-case letter of a letter of ASCII, Latin-1 or Latin Extended-A, where both are in this range; any
// other character unchanged. So "ı" and "ſ" stay as they are and never pass for "I" and "S".
char32_t UppercaseOf(char32_t code);

// The text with U+FFFD for each byte that is no part of valid UTF-8. For text from outside that is to be
// shown, not for names of files.
std::string WithoutInvalidUtf8(std::string_view text);

} // namespace tessarolyne

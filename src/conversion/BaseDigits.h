#pragma once

#include <optional>
#include <string>
#include <string_view>

// Digits in a base as people write them, in programs above all.
namespace tessarolyne {

// The digits without what only says how they are written: blanks, "_", ":" and apostrophes between them, and
// in its own base, with the digits first, one of the prefixes 0x, #, 0b and 0o or a final h. Whether they are
// digits of the base isn't asked.
std::string BareDigits(std::string_view text, int base, std::string_view alphabet);

// Whether all of them, of either case, are digits of the base.
bool AreDigits(std::string_view digits, int base, std::string_view alphabet);

// The digits that a text from the clipboard stands for; nothing if the base hasn't all of them.
std::optional<std::string> DigitsAsPasted(std::string_view pasted, int base, std::string_view alphabet);

} // namespace tessarolyne

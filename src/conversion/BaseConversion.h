#pragma once

#include <optional>
#include <string>
#include <string_view>

// Numbers in a base as digits, and digits as people write them, in programs above all.
namespace tessarolyne {

inline constexpr int smallestBase = 2;
inline constexpr int largestBase = 36;

// The two alphabets: a number in base b uses the first b characters. Base 10 has the decimal digits in both.
inline constexpr std::string_view alphabet09AZ = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
inline constexpr std::string_view alphabetAZ09 = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";

// The digits in `baseDest` of the number whose digits in `baseOrg` are `nombre`; Txt_ErrNbre where that is no
// number in its base, Txt_ErrBase for a base that the alphabet doesn't have. The case of the digits that are
// read doesn't count. Base 10 is read as IsNumeric says, its fraction cut off. A value beyond 64 bits, or a
// negative one, becomes the largest of 64 bits, which is above every limit of the program. No digits at all
// are 0, but not in base 10.
std::string ConvNbreBase(std::string_view nombre, int baseOrg, int baseDest, std::string_view alphabet);

// What programs write before the digits of a number in the base; empty for most bases.
std::string_view PrefixOf(int base);

// Whether a field shows one of the two texts that stand for a number there is none of.
bool IsErrorText(std::string_view text);

// The digits without what only says how they are written: blanks, "_", ":" and apostrophes between them, and
// in its own base, with the digits first, one of the prefixes 0x, #, 0b and 0o or a final h. Whether they are
// digits of the base isn't asked.
std::string BareDigits(std::string_view text, int base, std::string_view alphabet);

// Whether all of them, of either case, are digits of the base.
bool AreDigits(std::string_view digits, int base, std::string_view alphabet);

// The digits that a text from the clipboard stands for; nothing if the base hasn't all of them.
std::optional<std::string> DigitsAsPasted(std::string_view pasted, int base, std::string_view alphabet);

} // namespace tessarolyne

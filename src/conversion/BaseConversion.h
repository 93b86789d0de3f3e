#pragma once

#include <string>
#include <string_view>

namespace tessarolyne {

// The two alphabets: a number in base b uses the first b characters.
inline constexpr std::string_view alphabet09AZ = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
inline constexpr std::string_view alphabetAZ09 = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";

// The texts that stand for a result where there is none.
struct ErrorTexts {
    std::string errNbre; // the text is no number in its base
    std::string errBase; // a base is below 2 or has more digits than the alphabet
};

// The digits in `baseDest` of the number whose digits in `baseOrg` are `nombre`, or one of the error texts.
// The case of the digits that are read doesn't count. Base 10 doesn't use the alphabet: it is read as
// IsNumeric says, its fraction cut off, and written in decimal digits. A value beyond 64 bits, or a negative
// one, becomes the largest of 64 bits, which is above every limit of the program. No digits at all are 0, but
// not in base 10.
std::string ConvNbreBase(
    std::string_view nombre, int baseOrg, int baseDest, std::string_view alphabet, const ErrorTexts& errors);

} // namespace tessarolyne

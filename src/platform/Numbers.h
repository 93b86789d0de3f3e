#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

// The framework's number functions. The point is always ".", whatever the locale of the process; texts of any
// length take linear time, and no result is a NaN or an infinity.
namespace tessarolyne {

// Whether the text reads as a number. Blanks (U+0020) anywhere are passed over; the rest is an optional sign
// and digits with at most one point among, before or behind them. No comma, no exponent, no hexadecimal, no
// "nan" or "inf".
bool IsNumeric(std::string_view text);

// The value of a text for which IsNumeric is true, 0 for any other. A value beyond the largest finite double
// is that double, so that whatever is shown of it can be read again.
double CDbl(std::string_view text);

// The value of the number with which the text begins, after optional blanks (U+0020); 0 if there is none. An
// exponent belongs to it ("e" or "E", an optional sign, digits); a blank behind the first digit ends it.
double Val(std::string_view text);

// The nearest whole number, halves away from zero.
double Round(double value);

// The decimal digits of an integer, with a minus if it is negative.
template <std::integral Integer>
std::string Str(Integer value) {
    return std::to_string(value);
}

// The number written as the mask says, rounded half away from zero from the double's exact value:
//   -     at the front: a negative number has a minus, right before its first digit; without it, none
//   #     a place for a digit, nothing where the number has none (so 0 is empty in "###")
//   0     a place for a digit, "0" where the number has none
//   .     the decimal point; behind it each place shows its digit
//   \x    the character x itself, as is any other character; also in groups that hold no digit
// Digits for which there is no place stand before the first place, none is lost. A NaN is written as 0, an
// infinity as the largest finite double.
std::string Format(double value, std::string_view mask);
// The mask of a number without groups.
inline constexpr std::string_view plainMask = "-#################0";

// The value without its fraction; the nearest value that the type has where it doesn't fit, 0 for a NaN.
std::uint64_t ToUInt64(double value);
std::int32_t ToInt32(double value);
std::int16_t ToInt16(double value);

} // namespace tessarolyne

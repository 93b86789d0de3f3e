#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
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
inline double Round(double value) {
    return std::round(value);
}

// The decimal digits of an integer, with a minus if it is negative.
template <std::integral Integer>
std::string Str(Integer value) {
    return std::to_string(value);
}

// The number written as the mask says, rounded half away from zero from the double's exact value. A mask is
// of these, in this order:
//   -      at the front: a negative number has a minus; without it, none
//   # 0    places for digits; a 0 among them shows the number 0 as "0", without one as in "###" it is empty
//   \ and a blank, among them: a blank between groups of three digits, as often as the mask has it
//   .00    at the end: two decimals
// Digits for which there is no place stand before the first, none is lost; nothing stands for a group that
// has none. A NaN is written as 0, an infinity as the largest finite double.
std::string Format(double value, std::string_view mask);
// The mask of a number without groups.
inline constexpr std::string_view plainMask = "-#################0";

// The value without its fraction; the nearest value that the type has where it doesn't fit, 0 for a NaN. The
// bounds are compared as doubles: the upper one is the power of two just above the largest value, which a
// double holds exactly.
template <std::integral Integer>
Integer Saturated(double value) {
    using Limits = std::numeric_limits<Integer>;
    if (std::isnan(value)) {
        return 0;
    }
    if (value <= static_cast<double>(Limits::min())) {
        return Limits::min();
    }
    return value >= std::ldexp(1.0, Limits::digits) ? Limits::max() : static_cast<Integer>(value);
}
inline constexpr auto ToUInt64 = Saturated<std::uint64_t>;
inline constexpr auto ToInt32 = Saturated<std::int32_t>;
inline constexpr auto ToInt16 = Saturated<std::int16_t>;

} // namespace tessarolyne

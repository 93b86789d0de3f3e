#pragma once

#include <string>
#include <string_view>

// A whole number in English words, with "and" and without hyphens ("one thousand and twenty one"). There is
// no scale above the million: the English limit lies three digits below the French one.
namespace tessarolyne {

// What Century gives for a group above 999. No group of three digits leads there; a caller that meets it has
// found an error of the program, and says so to the user.
inline constexpr std::string_view centuryError = "### Error ###";

// The words of one group of one to three digits, without a scale word and without a blank at the end; empty
// for "000". `position` is the group's place from 0 at the left, `dernier` that of the last group, which
// takes "and" when it has no hundreds and isn't alone. centuryError for a value above 999.
std::string Century(std::string_view tranche, int dernier, int position);

// The words of `nombre` (decimal digits, no sign, no leading zeros), ended by one blank. More than 9 digits
// give `tooLargeText`, without a blank.
std::string ConvNbreLettresEn(std::string_view nombre, std::string_view tooLargeText);

} // namespace tessarolyne

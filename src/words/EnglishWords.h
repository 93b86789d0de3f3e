#pragma once

#include <functional>
#include <string>
#include <string_view>

// A whole number in English words, with "and" and without hyphens ("one thousand and twenty one"). There is
// no scale above the million: the English limit lies three digits below the French one.
namespace tessarolyne {

// What Century gives for a group above 999, which no group of three digits leads to, and what it then
// reports.
inline constexpr std::string_view centuryError = "### Error ###";
inline constexpr std::string_view centuryReport = "Century, hNbre : Less than 1000 please !";

// Takes the report of an error of the program, for the user to see.
using ErrorReport = std::function<void(std::string_view)>;

// The words of one group of one to three digits, without a scale word and without a blank at the end; empty
// for "000". `position` is the group's place from 0 at the left, `dernier` that of the last group, which
// takes "and" when it has no hundreds and isn't alone. centuryError, and a report, for a value above 999.
std::string Century(std::string_view tranche, int dernier, int position, const ErrorReport& report = {});

// The words of `nombre` (decimal digits, no sign, no leading zeros), ended by one blank. More than 9 digits
// give `tooLargeText`, without a blank.
std::string ConvNbreLettresEn(
    std::string_view nombre, std::string_view tooLargeText, const ErrorReport& report = {});

} // namespace tessarolyne

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The forms in which the program shows a number: with `formatAuto` in groups with a blank between them, else
// bare.
namespace tessarolyne {

// The largest number that is accepted.
inline constexpr std::uint64_t NbreMax = 999'999'999'999;

// The mask of decimal numbers in groups.
inline constexpr std::string_view groupedMask = R"(-###\ ###\ ###\ ###\ ###\ ##0)";

// The text with the separator between groups of `groupSize` characters, counted from the right; unchanged if
// the size is 0 or negative.
std::string FormatString(std::string_view text, std::string_view separator, int groupSize);

// A decimal number as it is shown, with two decimals if it has any that they show; a text that isn't numeric
// unchanged, so that errors and messages pass. Its own result comes back as it is.
std::string FormatNbre(std::string_view nombre, bool formatAuto);

// A whole number as it is shown; exact up to 2^53.
std::string FormatWhole(std::uint64_t value, bool grouped);

// The digits of a number in a base as they are shown; the size of the groups depends on the base.
std::string FormatType(std::string_view nombre, int base, bool formatAuto);

} // namespace tessarolyne

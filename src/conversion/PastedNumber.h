#pragma once

#include <string>
#include <string_view>

// What is made of a text from the clipboard before a number field takes it.
namespace tessarolyne {

// A number as people write it, in digits with a point: "1 234,50 €", "1'234.50" and "1,234.50" become
// "1234.50". Blanks of any kind, line ends, apostrophes between digits, commas or points between thousands,
// and what stands around the number are left out; any other comma or point that comes once is the decimal
// sign. A "+", "-" or U+2212 at the front stays as "+" or "-". Any other text, also one that could mean two
// numbers, comes back unchanged.
std::string NumberAsWritten(std::string_view pasted);

// The text with each blank, of whatever kind, as U+0020, and without line ends.
std::string DigitsAsPasted(std::string_view text);

} // namespace tessarolyne

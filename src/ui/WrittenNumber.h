#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Numbers as people write them, read digit for digit or not at all.
namespace tessarolyne {

// Which sign the language writes before decimals. It matters for a single comma with three digits behind it
// alone: "1,234" is 1234 where the sign is the point.
enum class DecimalSign { Comma, Point };

// The digits of a number around its decimal sign.
struct WrittenNumber {
    // With a point, as the program writes it.
    std::string Text() const { return point ? whole + "." + decimals : whole; }

    std::string whole;
    bool point = false;
    std::string decimals;
};

// The text without blanks and line ends around it.
std::string_view Trimmed(std::string_view text);

// The text with one form for signs that have several: "’" is "'", U+2212 is "-", blanks of any width are
// U+0020.
std::string WithPlainSigns(std::string_view text);

// What a text with plain signs stands for, or nothing. Blanks, apostrophes and "_" may stand between the
// digits before the decimal sign. A single point is the decimal sign, several are groups; so are commas and
// points before the other of the two. Beginnings of numbers, such as "." and "12,", are read too.
std::optional<WrittenNumber> ReadNumber(std::string_view text, DecimalSign sign);

// Whether the text has at least two commas and is one to three digits short of a number in groups: "1,234,5".
bool BeginsGroups(std::string_view text);

// What a text from the clipboard stands for, or nothing. Blanks and line ends around it, a plus, and a
// currency before or behind the number are left out, and zeros beyond `decimals` decimals are none.
std::optional<WrittenNumber> ReadPasted(std::string_view pasted, std::size_t decimals, DecimalSign sign);

} // namespace tessarolyne

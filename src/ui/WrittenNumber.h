#pragma once

#include "platform/TextControls.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Numbers as people write them, read digit for digit or not at all.
// The forms in which the program shows a number: with `formatAuto` in groups with a blank between them, else
// bare.
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

// What becomes of each edit in a number field: keys that go on with a number are taken one by one, and a
// paste is taken whole or not at all. It remembers how the number was typed, since a separator may turn out
// to be one of groups: "1,23" is 1.23 in English, "1,234" is 1234. Such a text that isn't complete stands as
// it was typed.
class NumberTyping {
public:
    enum class Refusal { None, NoNumber, TooManyDigits, TooManyDecimals, Minus };

    // Makes of the edit what may stand, or says why it can't; the mask is the field's.
    Refusal Take(TextEdit& edit, const Mask& mask, DecimalSign sign);
    // Whoever comes back to the field goes on with the number that it shows.
    void Forget();

private:
    bool StandsInPart() const { return !written_.empty() && written_ == shown_; }
    void TakeDeletion(TextEdit& edit, const Mask& mask, DecimalSign sign);
    Refusal TakeKey(TextEdit& edit, const Mask& mask, DecimalSign sign);
    Refusal TakePaste(TextEdit& edit, const Mask& mask, DecimalSign sign);
    bool Stands(TextEdit& edit, const std::string& written, const Mask& mask, DecimalSign sign);

    std::string written_; // as it was typed, for as long as the field holds `shown_`
    std::string shown_;
};

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

#include "ui/NumberFormat.h"

#include "platform/Numbers.h"
#include "platform/Text.h"

#include <cstddef>
#include <cstdint>

namespace tessarolyne {

namespace {

int GroupSize(int base) {
    switch (base) {
    case 2:
        return 4;
    case 8:
    case 10:
        return 3;
    case 16:
        return 2;
    default:
        return 5;
    }
}

// Whether two decimals show a fraction. One that they don't show gets no ".00", which the next reading would
// take for a whole number and show without.
bool ShowsFraction(double value) {
    return value != Round(value) && !Format(value, "0.00").ends_with(".00");
}

} // namespace

std::string FormatString(std::string_view text, std::string_view separator, int groupSize) {
    if (groupSize <= 0) {
        return std::string(text);
    }
    std::string result;
    std::int64_t left = Len(text);
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t size = CharacterAt(text, at).size;
        result += text.substr(at, size);
        at += size;
        --left;
        if (left > 0 && left % groupSize == 0) {
            result += separator;
        }
    }
    return result;
}

std::string FormatNbre(std::string_view nombre, bool formatAuto) {
    if (!IsNumeric(nombre)) {
        return std::string(nombre);
    }
    const double value = CDbl(nombre);
    std::string mask(formatAuto ? groupedMask : plainMask);
    if (ShowsFraction(value)) {
        mask += ".00";
    }
    return Format(value, mask);
}

std::string FormatType(std::string_view nombre, int base, bool formatAuto) {
    const std::string digits = WithoutBlanks(nombre);
    return formatAuto ? FormatString(digits, " ", GroupSize(base)) : digits;
}

std::string FormatWhole(std::uint64_t value, bool grouped) {
    return Format(static_cast<double>(value), grouped ? groupedMask : plainMask);
}

} // namespace tessarolyne

#include "words/EnglishWords.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <limits>
#include <system_error>

namespace tessarolyne {

namespace {

constexpr std::size_t mostDigits = 9;

constexpr std::array<std::string_view, 20> belowTwenty = {"zero", "one", "two", "three", "four", "five",
    "six", "seven", "eight", "nine", "ten", "eleven", "twelve", "thirteen", "fourteen", "fifteen", "sixteen",
    "seventeen", "eighteen", "nineteen"};
constexpr std::array<std::string_view, 10> tens = {
    "", "", "twenty", "thirty", "forty", "fifty", "sixty", "seventy", "eighty", "ninety"};

// Indexed by the number of groups to the right.
constexpr std::array<std::string_view, 3> scales = {"", "thousand", "million"};

void AppendBelowHundred(std::string& words, unsigned number) {
    if (number < 20) {
        words += belowTwenty[number];
        return;
    }
    words += tens[number / 10];
    if (number % 10 != 0) {
        words += ' ';
        words += belowTwenty[number % 10];
    }
}

unsigned ValueOf(std::string_view digits) {
    unsigned value = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return read.ec == std::errc::result_out_of_range ? std::numeric_limits<unsigned>::max() : value;
}

} // namespace

std::string Century(std::string_view tranche, int dernier, int position, const ErrorReport& report) {
    if (tranche == "000") {
        return {};
    }
    const unsigned hNbre = ValueOf(tranche);
    if (hNbre > 999) {
        if (report) {
            report(centuryReport);
        }
        return std::string(centuryError);
    }
    const unsigned rest = hNbre % 100;
    const unsigned hundreds = hNbre / 100;
    std::string words;
    if (rest == 0 || hundreds > 0) {
        words += belowTwenty[hundreds];
        words += " hundred";
    }
    if (rest == 0) {
        return words;
    }
    if (hundreds > 0) {
        words += " and ";
    } else if (dernier > 0 && position == dernier) {
        words += "and ";
    }
    AppendBelowHundred(words, rest);
    return words;
}

std::string ConvNbreLettresEn(
    std::string_view nombre, std::string_view tooLargeText, const ErrorReport& report) {
    if (nombre.empty() || nombre == "0") {
        return "zero ";
    }
    if (nombre.size() > mostDigits) {
        return std::string(tooLargeText);
    }
    const std::size_t groups = (nombre.size() + 2) / 3;
    std::string words;
    for (std::size_t toTheRight = groups; toTheRight-- > 0;) {
        const std::size_t end = nombre.size() - 3 * toTheRight;
        const std::size_t begin = end > 3 ? end - 3 : 0;
        const std::string_view group = nombre.substr(begin, end - begin);
        if (group == "000") {
            continue;
        }
        words +=
            Century(group, static_cast<int>(groups) - 1, static_cast<int>(groups - 1 - toTheRight), report);
        words += ' ';
        if (toTheRight > 0) {
            words += scales[toTheRight];
            words += ' ';
        }
    }
    return words;
}

} // namespace tessarolyne

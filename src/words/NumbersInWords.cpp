#include "words/NumbersInWords.h"

#include "platform/Numbers.h"
#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessarolyne {

namespace {

constexpr std::size_t mostFrenchDigits = 12;
constexpr std::size_t mostEnglishDigits = 9;

constexpr int thousands = 2;

struct Entry {
    int key;
    std::string_view france;
    std::string_view swissBelgian = france;
};

// Every number below 100 whose words aren't simply those of its tens and those of its units, and the parts
// from which the others are made.
constexpr Entry entries[] = {{0, "zéro"}, {1, "un"}, {2, "deux"}, {3, "trois"}, {4, "quatre"}, {5, "cinq"},
    {6, "six"}, {7, "sept"}, {8, "huit"}, {9, "neuf"}, {10, "dix"}, {11, "onze"}, {12, "douze"},
    {13, "treize"}, {14, "quatorze"}, {15, "quinze"}, {16, "seize"}, {17, "dix sept"}, {18, "dix huit"},
    {19, "dix neuf"}, {20, "vingt"}, {30, "trente"}, {40, "quarante"}, {50, "cinquante"}, {60, "soixante"},
    {70, "soixante dix", "septante"}, {71, "soixante et onze", "septante et un"},
    {72, "soixante douze", "septante deux"}, {73, "soixante treize", "septante trois"},
    {74, "soixante quatorze", "septante quatre"}, {75, "soixante quinze", "septante cinq"},
    {76, "soixante seize", "septante six"}, {80, "quatre vingt", "huitante"},
    {90, "quatre vingt dix", "nonante"}, {91, "quatre vingt onze", "nonante et un"},
    {92, "quatre vingt douze", "nonante deux"}, {93, "quatre vingt treize", "nonante trois"},
    {94, "quatre vingt quatorze", "nonante quatre"}, {95, "quatre vingt quinze", "nonante cinq"},
    {96, "quatre vingt seize", "nonante six"}};

constexpr std::array<std::string_view, 20> belowTwenty = {"zero", "one", "two", "three", "four", "five",
    "six", "seven", "eight", "nine", "ten", "eleven", "twelve", "thirteen", "fourteen", "fifteen", "sixteen",
    "seventeen", "eighteen", "nineteen"};
constexpr std::array<std::string_view, 10> tens = {
    "", "", "twenty", "thirty", "forty", "fifty", "sixty", "seventy", "eighty", "ninety"};

// Indexed by the number of groups to the right.
constexpr std::array<std::string_view, 3> scales = {"", "thousand ", "million "};

unsigned ValueOf(std::string_view digits) {
    unsigned value = 0;
    for (const char c : digits) {
        value = value * 10 + static_cast<unsigned>(c - '0');
    }
    return value;
}

// The words of a number below 100 by the table, with plain blanks; empty where the table has no entry.
std::string EntryOf(unsigned number, bool chBe) {
    const auto* const entry = std::ranges::find(entries, static_cast<int>(number), &Entry::key);
    return std::string(entry == std::end(entries) ? "" : chBe ? entry->swissBelgian : entry->france);
}

std::string WordsBelowHundred(unsigned number, bool chBe) {
    if (const std::string entry = EntryOf(number, chBe); !entry.empty()) {
        return entry;
    }
    const unsigned units = number % 10;
    const unsigned ten = number - units;
    return EntryOf(ten, chBe) + (ten != 80 && units == 1 ? " et " : " ") + EntryOf(units, chBe);
}

// "cents" takes its plural only where nothing follows it but a noun: "million" is one, "mille" isn't.
std::string WithHundreds(unsigned hundreds, const std::string& word, int rang, bool chBe) {
    const bool round = word == "zéro";
    const std::string count = hundreds == 1 ? "" : EntryOf(hundreds, chBe) + ' ';
    return count + (hundreds != 1 && round && rang != thousands ? "cents" : "cent") +
           (round ? "" : ' ' + word);
}

std::string WithScale(const std::string& word, int rang) {
    constexpr std::array<const char*, 5> nouns = {"", "", " mille", " million", " milliard"};
    const bool one = word == "un";
    if (rang <= thousands) {
        return one && rang == thousands ? "mille" : word + nouns[static_cast<std::size_t>(rang)];
    }
    return word + nouns[static_cast<std::size_t>(rang)] + (one ? "" : "s");
}

// "H" isn't in the list though French often elides before it, and an accented letter isn't its plain one.
bool TakesElision(std::string_view currency) {
    constexpr std::array<std::string_view, 7> eliding = {"€", "A", "E", "I", "O", "U", "Y"};
    return std::ranges::find(eliding, Uppercase(Left(currency, 1))) != eliding.end();
}

// The words of `number` and the noun they count. Zero takes the singular in English too.
std::string Counted(const std::string& number, const std::string& singular, const std::string& plural,
    const AmountSettings& settings) {
    std::string words = settings.language == "en"
                            ? ConvNbreLettresEn(number, settings.tooLargeText, settings.report)
                            : ConvNbreLettresFr(number, settings.language == "ch be", settings.pluralCurrency,
                                  settings.tooLargeText);
    if (settings.hyphens) { // whatever stands in the words' place is joined as well
        std::ranges::replace(words, ' ', '-');
        if (words.ends_with('-')) {
            words.back() = ' ';
        }
    }
    return words + (number == "0" || number == "1" ? singular : plural);
}

// "0" to "99".
std::string Cents(double value) {
    const std::string shown = Format(value, "0.00");
    return shown.substr(shown.size() - (shown[shown.size() - 2] == '0' ? 1 : 2));
}

} // namespace

std::string TrouvNbreLettr(std::string_view tranche, int rang, bool chBe) {
    const unsigned value = ValueOf(tranche);
    std::string word = WordsBelowHundred(value % 100, chBe);
    if (word.find("et") == std::string::npos) {
        std::ranges::replace(word, ' ', '-');
    }
    if (word == "quatre-vingt" && rang != thousands) {
        word += 's';
    }
    return WithScale(value < 100 ? word : WithHundreds(value / 100, word, rang, chBe), rang);
}

std::string ConvNbreLettresFr(
    std::string_view nombre, bool chBe, std::string_view pluralCurrency, std::string_view tooLargeText) {
    if (nombre.size() > mostFrenchDigits) {
        return std::string(tooLargeText);
    }
    if (nombre == "0") {
        return "zéro ";
    }
    std::string result;
    for (std::size_t left = nombre.size(); left > 0;) {
        const std::size_t inLaterGroups = (left - 1) / 3 * 3;
        const std::string_view group = nombre.substr(nombre.size() - left, left - inLaterGroups);
        if (ValueOf(group) > 0) {
            result += TrouvNbreLettr(group, static_cast<int>(inLaterGroups / 3) + 1, chBe) + ' ';
        }
        left = inLaterGroups;
    }
    if (nombre.ends_with("000000")) {
        result += TakesElision(pluralCurrency) ? "d'" : "de ";
    }
    return result;
}

std::string Century(std::string_view tranche, int dernier, int position, const ErrorReport& report) {
    if (tranche == "000") {
        return {};
    }
    const unsigned hNbre = ValueOf(tranche);
    if (hNbre > 999) {
        if (report) {
            report("Century, hNbre : Less than 1000 please !");
        }
        return "### Error ###";
    }
    const unsigned rest = hNbre % 100;
    const unsigned hundreds = hNbre / 100;
    std::string words;
    if (rest == 0 || hundreds > 0) {
        words.append(belowTwenty[hundreds]).append(" hundred");
    }
    if (rest == 0) {
        return words;
    }
    if (hundreds > 0) {
        words += " and ";
    } else if (dernier > 0 && position == dernier) {
        words += "and ";
    }
    if (rest < 20) {
        return words.append(belowTwenty[rest]);
    }
    words += tens[rest / 10];
    return rest % 10 == 0 ? words : words.append(" ").append(belowTwenty[rest % 10]);
}

std::string ConvNbreLettresEn(
    std::string_view nombre, std::string_view tooLargeText, const ErrorReport& report) {
    if (nombre == "0") {
        return "zero ";
    }
    if (nombre.size() > mostEnglishDigits) {
        return std::string(tooLargeText);
    }
    const std::size_t dernier = (nombre.size() - 1) / 3;
    std::string words;
    for (std::size_t left = nombre.size(); left > 0;) {
        const std::size_t toTheRight = (left - 1) / 3;
        const std::string_view group = nombre.substr(nombre.size() - left, left - 3 * toTheRight);
        if (group != "000") {
            const auto position = static_cast<int>(dernier - toTheRight);
            words += Century(group, static_cast<int>(dernier), position, report) + ' ';
            words += scales[toTheRight];
        }
        left = 3 * toTheRight;
    }
    return words;
}

std::string AmountInWords(double value, const AmountSettings& settings) {
    if (!(value >= 0.0)) {
        return {};
    }
    const std::string whole = Format(std::floor(value), "0");
    std::string total = Counted(whole, settings.singularCurrency, settings.pluralCurrency, settings) + ' ' +
                        Counted(Cents(value), settings.singularCents, settings.pluralCents, settings);
    if (settings.capital) {
        const std::string first = Left(total, 1);
        total.replace(0, first.size(), Uppercase(first));
    }
    return total;
}

} // namespace tessarolyne

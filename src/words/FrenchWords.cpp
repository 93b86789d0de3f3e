#include "words/FrenchWords.h"

#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tessarolyne {

namespace {

constexpr std::size_t mostDigits = 12;

constexpr int thousands = 2;
constexpr int millions = 3;
constexpr int milliards = 4;

struct Entry {
    int key;
    std::string_view france;
    std::string_view swissBelgian;
};

// Every number below 100 whose words aren't simply those of its tens and those of its units, and the parts
// from which the others are made.
constexpr std::array<Entry, 40> entries = {{
    {0, "zéro", "zéro"},
    {1, "un", "un"},
    {2, "deux", "deux"},
    {3, "trois", "trois"},
    {4, "quatre", "quatre"},
    {5, "cinq", "cinq"},
    {6, "six", "six"},
    {7, "sept", "sept"},
    {8, "huit", "huit"},
    {9, "neuf", "neuf"},
    {10, "dix", "dix"},
    {11, "onze", "onze"},
    {12, "douze", "douze"},
    {13, "treize", "treize"},
    {14, "quatorze", "quatorze"},
    {15, "quinze", "quinze"},
    {16, "seize", "seize"},
    {17, "dix sept", "dix sept"},
    {18, "dix huit", "dix huit"},
    {19, "dix neuf", "dix neuf"},
    {20, "vingt", "vingt"},
    {30, "trente", "trente"},
    {40, "quarante", "quarante"},
    {50, "cinquante", "cinquante"},
    {60, "soixante", "soixante"},
    {70, "soixante dix", "septante"},
    {71, "soixante et onze", "septante et un"},
    {72, "soixante douze", "septante deux"},
    {73, "soixante treize", "septante trois"},
    {74, "soixante quatorze", "septante quatre"},
    {75, "soixante quinze", "septante cinq"},
    {76, "soixante seize", "septante six"},
    {80, "quatre vingt", "huitante"},
    {90, "quatre vingt dix", "nonante"},
    {91, "quatre vingt onze", "nonante et un"},
    {92, "quatre vingt douze", "nonante deux"},
    {93, "quatre vingt treize", "nonante trois"},
    {94, "quatre vingt quatorze", "nonante quatre"},
    {95, "quatre vingt quinze", "nonante cinq"},
    {96, "quatre vingt seize", "nonante six"},
}};

constexpr std::size_t noEntry = entries.size();

constexpr std::array<std::size_t, 100> IndexByNumber() {
    std::array<std::size_t, 100> index{};
    index.fill(noEntry);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        index[static_cast<std::size_t>(entries[i].key)] = i;
    }
    return index;
}

constexpr std::array<std::size_t, 100> indexByNumber = IndexByNumber();

// The words of a number below 100 by the table, with plain blanks; empty where the table has no entry.
std::string_view EntryOf(int number, bool chBe) {
    const std::size_t index = indexByNumber[static_cast<std::size_t>(number)];
    if (index == noEntry) {
        return {};
    }
    return chBe ? entries[index].swissBelgian : entries[index].france;
}

// The digit `place` places from the right. A missing digit or another character, which no number that the
// program has formatted can hold, reads as 0, so that no text leads outside the table.
int DigitFromRight(std::string_view digits, std::size_t place) {
    if (place >= digits.size()) {
        return 0;
    }
    const char digit = digits[digits.size() - 1 - place];
    return IsDigit(digit) ? digit - '0' : 0;
}

std::string WordsBelowHundred(int number, bool chBe) {
    if (const auto entry = EntryOf(number, chBe); !entry.empty()) {
        return std::string(entry);
    }
    const int units = number % 10;
    const int tens = number - units;
    std::string words(EntryOf(tens, chBe));
    words += tens != 80 && units == 1 ? " et " : " ";
    words += EntryOf(units, chBe);
    return words;
}

// "et" keeps its blanks; elsewhere the words of a number below 100 are joined.
void JoinWithHyphens(std::string& words) {
    if (words.find("et") == std::string::npos) {
        std::replace(words.begin(), words.end(), ' ', '-');
    }
}

// "cents" takes its plural only where nothing follows it but a noun: "million" is one, "mille" isn't.
std::string WithHundreds(int hundreds, const std::string& word, int rang, bool chBe) {
    const bool round = word == "zéro";
    std::string words;
    if (hundreds != 1) {
        words += EntryOf(hundreds, chBe);
        words += ' ';
    }
    words += hundreds != 1 && round && rang != thousands ? "cents" : "cent";
    if (!round) {
        words += ' ';
        words += word;
    }
    return words;
}

void AddScale(std::string& word, int rang) {
    const bool one = word == "un";
    switch (rang) {
    case thousands:
        word = one ? "mille" : word + " mille";
        break;
    case millions:
        word += one ? " million" : " millions";
        break;
    case milliards:
        word += one ? " milliard" : " milliards";
        break;
    default:
        break;
    }
}

// "H" isn't in the list though French often elides before it, and an accented letter isn't its plain one.
bool TakesElision(std::string_view currency) {
    static constexpr std::array<std::string_view, 7> eliding = {"€", "A", "E", "I", "O", "U", "Y"};
    const std::string first = Uppercase(Left(currency, 1));
    return std::find(eliding.begin(), eliding.end(), first) != eliding.end();
}

bool EndsInMillions(std::string_view words) {
    return words.ends_with("million ") || words.ends_with("millions ") || words.ends_with("milliard ") ||
           words.ends_with("milliards ");
}

} // namespace

std::string TrouvNbreLettr(std::string_view tranche, int rang, bool chBe) {
    std::string word = WordsBelowHundred(10 * DigitFromRight(tranche, 1) + DigitFromRight(tranche, 0), chBe);
    JoinWithHyphens(word);
    if (word == "quatre-vingt" && rang != thousands) {
        word += 's';
    }
    if (tranche.size() == 3) {
        word = WithHundreds(DigitFromRight(tranche, 2), word, rang, chBe);
    }
    AddScale(word, rang);
    return word;
}

std::string ConvNbreLettresFr(
    std::string_view nombre, bool chBe, std::string_view pluralCurrency, std::string_view tooLargeText) {
    if (nombre.size() > mostDigits) {
        return std::string(tooLargeText);
    }
    if (nombre == "0") {
        return "zéro ";
    }
    std::string result;
    for (std::size_t left = nombre.size(); left > 0;) {
        const std::size_t inLaterGroups = (left - 1) / 3 * 3;
        std::string_view group = nombre.substr(nombre.size() - left, left - inLaterGroups);
        group.remove_prefix(std::min(group.find_first_not_of('0'), group.size()));
        if (!group.empty()) {
            result += TrouvNbreLettr(group, static_cast<int>(inLaterGroups / 3) + 1, chBe);
            result += ' ';
        }
        left = inLaterGroups;
    }
    if (EndsInMillions(result)) {
        result += TakesElision(pluralCurrency) ? "d'" : "de ";
    }
    return result;
}

} // namespace tessarolyne

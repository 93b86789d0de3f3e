#include "ui/WrittenNumber.h"

#include "platform/Numbers.h"
#include "platform/Text.h"

#include <algorithm>

namespace tessarolyne {

namespace {

constexpr std::string_view digits = "0123456789";
constexpr std::string_view separators = ".,";

// Unicode's space separators. A tab stands between two cells, hence between two numbers.
bool IsBlank(char32_t code) {
    return code == ' ' || code == 0xA0 || code == 0x1680 || (code >= 0x2000 && code <= 0x200A) ||
           code == 0x202F || code == 0x205F || code == 0x3000;
}

bool AreDigits(std::string_view text) {
    return std::ranges::all_of(text, IsDigit);
}

// Whether these are digits only, or groups of three with one kind of separator between them. The first group
// of several has one to three digits and doesn't begin with 0: "0.123" is no thousands.
bool IsWhole(std::string_view text) {
    const std::size_t first = std::min(text.find_first_of(separators), text.size());
    if (first == text.size()) {
        return AreDigits(text);
    }
    const char separator = text[first];
    if (first == 0 || first > 3 || text[0] == '0' || (text.size() - first) % 4 != 0) {
        return false;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool separates = i >= first && (i - first) % 4 == 0;
        if (separates ? text[i] != separator : !IsDigit(text[i])) {
            return false;
        }
    }
    return true;
}

// The text without the signs that may stand between its groups, and where in it the last of them stood.
struct Ungrouped {
    std::string text;
    std::size_t lastGroup = 0; // 0: none
};

// Each stands behind a digit, and before one or at the end, where the next digit is to come. Blanks may be
// several.
std::optional<Ungrouped> WithoutGroupSigns(std::string_view text) {
    Ungrouped bare;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (IsDigit(c) || separators.find(c) != std::string_view::npos) {
            bare.text += c;
            continue;
        }
        const char before = at > 0 ? text[at - 1] : '\0';
        const char next = at + 1 < text.size() ? text[at + 1] : '\0';
        const bool isBlank = c == ' ' && (IsDigit(before) || before == ' ');
        const bool isMark = (c == '\'' || c == '_') && IsDigit(before);
        const bool goesOn = next == '\0' || IsDigit(next) || (isBlank && next == ' ');
        if (bare.text.empty() || !(isBlank || isMark) || !goesOn) {
            return std::nullopt;
        }
        bare.lastGroup = next == '\0' ? bare.lastGroup : bare.text.size();
    }
    return bare;
}

// Where the decimal sign stands; the text's size if there is none.
std::size_t DecimalSignAt(std::string_view text, bool hasGroups, DecimalSign sign) {
    const std::size_t last = text.find_last_of(separators);
    if (last == std::string_view::npos) {
        return text.size();
    }
    if (last == text.find_first_of(separators)) {
        const bool groups = text[last] == ',' && sign == DecimalSign::Point && !hasGroups && IsWhole(text);
        return groups ? text.size() : last;
    }
    return std::count(text.begin(), text.end(), text[last]) == 1 ? last : text.size();
}

bool IsCurrencySign(char32_t code) {
    return code == '$' || (code >= 0xA2 && code <= 0xA5) || (code >= 0x20A0 && code <= 0x20CF);
}

// Letters of the scripts in which currencies are written here and there; no digit of any script is among
// them.
bool IsWordLetter(char32_t code) {
    return (code < 0x80 && IsLetter(static_cast<char>(code))) ||
           (code >= 0xC0 && code < 0x250 && code != 0xD7 && code != 0xF7) ||
           (code >= 0x370 && code < 0x482) || (code >= 0x3040 && code < 0x3100) ||
           (code >= 0x4E00 && code < 0xA000) || (code >= 0xAC00 && code < 0xD7A4);
}

// A word that makes another number of the one beside it.
bool Multiplies(std::string_view word) {
    constexpr std::string_view words[] = {"K", "M", "MD", "MRD", "MDS", "MIA", "MIO", "BN", "HUNDRED", "CENT",
        "CENTS", "THOUSAND", "MILLE", "MILLION", "MILLIONS", "MILLIARD", "MILLIARDS", "BILLION", "BILLIONS",
        "TRILLION", "TRILLIONS", "DOZEN", "DOUZAINE", "DOUZAINES", "E", "EXP"};
    return std::find(std::begin(words), std::end(words), Uppercase(word)) != std::end(words);
}

// Whether this can be a currency, or words about one: nothing in it changes the number.
bool IsCurrency(std::string_view text) {
    std::string word;
    for (std::size_t at = 0; at <= text.size();) {
        const Character character = at < text.size() ? CharacterAt(text, at) : Character{' ', 1};
        if (IsWordLetter(character.code)) {
            word += text.substr(at, character.size);
        } else if (IsCurrencySign(character.code) || character.code == ' ' || character.code == '.' ||
                   character.code == ':') {
            if (Multiplies(std::exchange(word, {}))) {
                return false;
            }
        } else {
            return false;
        }
        at += character.size;
    }
    return true;
}

// Whether letters that touch the number are another way of writing one, and no currency: "1e", "12h", "FF12".
bool IsNotation(std::string_view word) {
    return word.size() == 1 ||
           (!word.empty() && word.find_first_not_of("abcdefABCDEF") == std::string_view::npos);
}

bool NotationTouches(std::string_view before, std::string_view behind) {
    const std::string_view touching(
        std::find_if_not(before.rbegin(), before.rend(), IsLetter).base(), before.end());
    const std::string_view following(
        behind.begin(), std::find_if_not(behind.begin(), behind.end(), IsLetter));
    return IsNotation(touching) || IsNotation(following);
}

// A price without cents ends in one: "12.–".
std::size_t DashSize(std::string_view text) {
    for (const std::string_view dash : {"-", "–", "—"}) {
        if (text.starts_with(dash)) {
            return dash.size();
        }
    }
    return 0;
}

// The number of a text between its currencies; empty for a text with anything else around it.
std::string_view WithoutCurrency(std::string_view text) {
    const auto isAt = [&](std::size_t at, std::string_view characters) {
        return at < text.size() && characters.find(text[at]) != std::string_view::npos;
    };
    std::size_t begin = text.find_first_of(digits);
    if (begin == std::string_view::npos) {
        return text;
    }
    std::size_t end = text.find_last_of(digits) + 1;
    std::size_t behind = end;
    if (isAt(end, ".,'_")) {
        behind = ++end;
        behind += isAt(end - 1, separators) ? DashSize(text.substr(end)) : 0;
    }
    const bool abbreviates = begin > 1 && IsLetter(text[begin - 2]); // "Fr.12"
    begin -= isAt(begin - 1, separators) && !abbreviates;
    const std::size_t before = begin - isAt(begin - 1, "+");
    const bool isNumber = IsCurrency(text.substr(0, before)) && IsCurrency(text.substr(behind)) &&
                          !NotationTouches(text.substr(0, before), text.substr(behind));
    return isNumber ? text.substr(begin, end - begin) : std::string_view();
}

using Refusal = NumberTyping::Refusal;

std::string After(TextEdit edit, const std::string& inserted) {
    edit.inserted = inserted;
    return edit.After();
}

void ReplaceAllOf(TextEdit& edit, const std::string& text) {
    edit.start = 0;
    edit.removed = static_cast<int>(Len(edit.before));
    edit.inserted = text;
}

// Why the mask doesn't take the number: what it has too much of.
Refusal WhyItDoesNotFit(std::string_view number, const Mask& mask) {
    const std::string bare = WithoutBlanks(number);
    const std::size_t point = std::min(bare.find('.'), bare.size());
    const std::string decimals = bare.substr(std::min(point + 1, bare.size()));
    if (!std::ranges::all_of(bare.substr(0, point) + decimals, IsDigit)) {
        return Refusal::NoNumber;
    }
    if (decimals.size() > mask.Decimals() || (point < bare.size() && mask.Decimals() == 0)) {
        return Refusal::TooManyDecimals;
    }
    return point > mask.WholeDigits() ? Refusal::TooManyDigits : Refusal::NoNumber;
}

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

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view around = " \t\n\v\f\r";
    text.remove_prefix(std::min(text.find_first_not_of(around), text.size()));
    return text.substr(0, text.find_last_not_of(around) + 1);
}

std::string WithPlainSigns(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Character character = CharacterAt(text, at);
        result += IsBlank(character.code)  ? " "
                  : character.code == U'’' ? "'"
                  : character.code == U'−' ? "-"
                                           : text.substr(at, character.size);
        at += character.size;
    }
    return result;
}

std::optional<WrittenNumber> ReadNumber(std::string_view text, DecimalSign sign) {
    const auto bare = WithoutGroupSigns(text);
    if (!bare || bare->text.empty()) {
        return std::nullopt;
    }
    const std::size_t decimalSign = DecimalSignAt(bare->text, bare->lastGroup > 0, sign);
    WrittenNumber number{bare->text.substr(0, decimalSign), decimalSign < bare->text.size(), {}};
    if (number.point) {
        number.decimals = bare->text.substr(decimalSign + 1);
    }
    const bool hasSeparators = number.whole.find_first_of(separators) != std::string::npos;
    if (!IsWhole(number.whole) || !AreDigits(number.decimals) || bare->lastGroup > decimalSign ||
        (hasSeparators && bare->lastGroup > 0)) {
        return std::nullopt;
    }
    std::erase(number.whole, ',');
    std::erase(number.whole, '.');
    return number;
}

bool BeginsGroups(std::string_view text) {
    const std::size_t last = text.find_last_of(',');
    if (last == std::string_view::npos || text.find('.') != std::string_view::npos) {
        return false;
    }
    const std::string_view complete = text.substr(0, last);
    const std::string_view begun = text.substr(last + 1);
    return complete.find(',') != std::string_view::npos && IsWhole(complete) && begun.size() < 3 &&
           AreDigits(begun);
}

std::optional<WrittenNumber> ReadPasted(std::string_view pasted, std::size_t decimals, DecimalSign sign) {
    const std::string plain = WithPlainSigns(pasted);
    auto number = ReadNumber(WithoutCurrency(Trimmed(plain)), sign);
    while (number && number->decimals.size() > decimals && number->decimals.back() == '0') {
        number->decimals.pop_back();
    }
    return number;
}

Refusal NumberTyping::Take(TextEdit& edit, const Mask& mask, DecimalSign sign) {
    const bool isOwn = StandsInPart() && edit.before == shown_;
    if (edit.inserted.empty()) {
        if (isOwn) {
            TakeDeletion(edit, mask, sign);
        }
        return Refusal::None;
    }
    if (!mask.Holds(edit.before) && !isOwn) { // a message gives way to a number
        ReplaceAllOf(edit, edit.inserted);
    }
    edit.inserted = WithPlainSigns(edit.inserted);
    const bool isKey = Len(edit.inserted) == 1;
    const Refusal refusal = isKey ? TakeKey(edit, mask, sign) : TakePaste(edit, mask, sign);
    return refusal != Refusal::None && edit.inserted.starts_with('-') ? Refusal::Minus : refusal;
}

void NumberTyping::Forget() {
    if (!StandsInPart()) {
        written_.clear();
        shown_.clear();
    }
}

void NumberTyping::TakeDeletion(TextEdit& edit, const Mask& mask, DecimalSign sign) {
    const std::string left = After(edit, "");
    if (!Stands(edit, left, mask, sign)) {
        written_ = shown_ = left;
    }
}

Refusal NumberTyping::TakeKey(TextEdit& edit, const Mask& mask, DecimalSign sign) {
    const bool isAtEnd = edit.start + edit.removed >= Len(edit.before);
    const std::string key = edit.inserted == "," ? "." : edit.inserted;
    if (isAtEnd) {
        const bool goesOn = edit.removed == 0 && edit.before == shown_;
        const std::string written = goesOn ? written_ : Left(edit.before, edit.start);
        if (Stands(edit, written + edit.inserted, mask, sign)) {
            return Refusal::None;
        }
    } else if (key != " " && mask.Holds(After(edit, key))) {
        edit.inserted = key;
        return Refusal::None;
    }
    return WhyItDoesNotFit(After(edit, key), mask);
}

Refusal NumberTyping::TakePaste(TextEdit& edit, const Mask& mask, DecimalSign sign) {
    const auto number = ReadPasted(edit.inserted, mask.Decimals(), sign);
    if (!number) {
        return Refusal::NoNumber;
    }
    const std::string after = After(edit, number->Text());
    if (!mask.Holds(after)) {
        return WhyItDoesNotFit(after, mask);
    }
    edit.inserted = number->Text();
    return Refusal::None;
}

// Whether the written text is a number for the field, or will be one with more digits; the edit then shows
// it.
bool NumberTyping::Stands(TextEdit& edit, const std::string& written, const Mask& mask, DecimalSign sign) {
    const auto number = ReadNumber(written, sign);
    std::string shown;
    if (number && mask.Holds(number->Text())) {
        shown = number->Text();
    } else if (sign == DecimalSign::Point && mask.Decimals() > 0 && BeginsGroups(written) &&
               std::count_if(written.begin(), written.end(), IsDigit) <
                   static_cast<std::ptrdiff_t>(mask.WholeDigits())) {
        shown = written;
    } else {
        return false;
    }
    ReplaceAllOf(edit, shown);
    written_ = written;
    shown_ = shown;
    return true;
}

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

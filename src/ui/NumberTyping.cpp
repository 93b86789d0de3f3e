#include "ui/NumberTyping.h"

#include "platform/Text.h"

#include <algorithm>

namespace tessarolyne {

namespace {

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

// What of a number with too many digits there are too many of.
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

} // namespace

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

} // namespace tessarolyne

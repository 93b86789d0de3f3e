// What was entered earlier in this run: Up and Down bring it back in both number fields.

#include "conversion/NumberHistory.h"

#include "conversion/BaseConversion.h"
#include "conversion/NumberEntry.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "platform/TextControls.h"
#include "ui/Program.h"
#include "ui/WrittenNumber.h"

#include <algorithm>

namespace tessarolyne {

void NumberHistory::Add(const std::string& number) {
    if (number.empty()) {
        return;
    }
    std::erase(numbers_, number);
    numbers_.push_back(number);
    if (numbers_.size() > longest) {
        numbers_.erase(numbers_.begin());
    }
}

std::optional<NumberHistory::Step> NumberHistory::Earlier(const std::string& shown, const std::string& text) {
    std::size_t at = at_.value_or(numbers_.size());
    if (at > 0 && numbers_[at - 1] == shown) {
        --at;
    }
    if (at == 0) {
        return {};
    }
    if (!at_) {
        draft_ = text;
        draftNumber_ = shown;
    }
    at_ = at - 1;
    return Step{numbers_[*at_]};
}

std::optional<NumberHistory::Step> NumberHistory::Later() {
    if (!at_) {
        return {};
    }
    const std::size_t next = *at_ + 1;
    if (next >= numbers_.size() || (next + 1 == numbers_.size() && numbers_[next] == draftNumber_)) {
        at_.reset();
        return Step{draft_, true};
    }
    at_ = next;
    return Step{numbers_[next], false};
}

void NumberHistory::GoOn() {
    if (at_) {
        at_.reset();
        Add(draftNumber_);
    }
}

// The number in one of the two fields, in decimal and bare; nothing where there is none.
std::string NumberEntry::NumberIn(const TextField& champ) {
    std::string decimal = WithoutBlanks(champ.Text());
    if (&champ == &EditFieldBaseOrg && !decimal.empty()) {
        decimal = ConvNbreBase(SourceDigits(), BaseOrg(), 10, Alphabet());
    }
    const bool isNumber = IsNumeric(decimal) && CDbl(decimal) <= static_cast<double>(NbreMax);
    return isNumber ? FormatNbre(decimal, false) : "";
}

// A number that gives way to another one, or is deleted, is one of the earlier ones.
void NumberEntry::FollowEdits(TextField& champ) {
    champ.TakeEdit = [this, &champ, take = champ.TakeEdit](TextEdit& edit) {
        if (recalling_) {
            return true;
        }
        const std::string number = NumberIn(champ);
        const bool deletes = edit.inserted.empty();
        const bool replaces = edit.removed == Len(edit.before);
        if (!take(edit)) {
            return false;
        }
        history_.GoOn();
        if (deletes && !deleting_) {
            beforeDeletion_ = number;
        }
        deleting_ = deletes;
        if (deletes && edit.After().empty()) {
            history_.Add(beforeDeletion_);
        } else if (replaces) {
            history_.Add(number);
        }
        return true;
    };
}

void NumberEntry::NoteNumber(const TextField& champ) {
    if (app_.initProg) {
        history_.GoOn();
        history_.Add(NumberIn(champ));
    }
}

// Bases have no cents: their field passes over such numbers.
std::optional<std::string> NumberEntry::NumberToRecall(const TextField& champ, bool earlier) {
    for (;;) {
        const auto step = earlier ? history_.Earlier(NumberIn(champ), champ.Text) : history_.Later();
        if (!step || step->isDraft || &champ == &EditFieldNbre) {
            return step ? std::optional(step->text) : std::nullopt;
        }
        if (step->text.find('.') == std::string::npos) {
            return ConvNbreBase(step->text, 10, BaseOrg(), Alphabet());
        }
    }
}

bool NumberEntry::RecallNumber(TextField& champ, const std::string& key) {
    const bool earlier = key == Chr(30);
    if (!earlier && key != Chr(31)) {
        return false;
    }
    if (const auto text = NumberToRecall(champ, earlier)) {
        recalling_ = true;
        champ.UserReplaced(0, static_cast<int>(Len(champ.Text())), *text);
        recalling_ = false;
    }
    return true;
}

} // namespace tessarolyne

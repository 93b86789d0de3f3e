// What was entered earlier in this run: Up and Down bring it back in both number fields.

#include "conversion/NumberEntry.h"
#include "platform/Clock.h"
#include "platform/Numbers.h"
#include "platform/PopupMenu.h"
#include "platform/Text.h"
#include "platform/TextControls.h"
#include "ui/App.h"
#include "ui/NumberFormat.h"

namespace tessarolyne {

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
    const bool isDecimal = &champ == &EditFieldNbre;
    for (;;) {
        std::string number;
        if (earlier) {
            const auto found = history_.Earlier(NumberIn(champ), champ.Text);
            if (!found) {
                return {};
            }
            number = *found;
        } else {
            const auto step = history_.Later();
            if (!step || step->isDraft) {
                return step ? std::optional(step->text) : std::nullopt;
            }
            number = step->text;
        }
        if (isDecimal) {
            return number;
        }
        if (number.find('.') == std::string::npos) {
            return ConvNbreBase(number, 10, BaseOrg(), Alphabet());
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

bool NumberEntry::PopupMenuBase_KeyDown(PopupMenu& menu, const std::string& key) {
    const auto base = typedBase_.Take(key, clock_.Milliseconds());
    if (base && *base > 0) {
        menu.ListIndex = *base - 2;
    }
    return base.has_value();
}

} // namespace tessarolyne

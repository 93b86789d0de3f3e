#include "platform/TextControls.h"

#include "platform/Numbers.h"
#include "platform/Text.h"

#include <algorithm>
#include <utility>

namespace tessarolyne {

std::string TextEdit::After() const {
    return Left(before, start) + inserted + Mid(before, start + removed + 1);
}

void TextControl::UserReplaced(int start, int removed, const std::string& inserted) {
    if (ReadOnly() || !TakesInput()) {
        return;
    }
    const int length = static_cast<int>(Len(Text()));
    start = std::clamp(start, 0, length);
    removed = std::clamp(removed, 0, length - start);
    Notice = "";
    TextEdit edit{Text(), start, removed, inserted};
    if (!(TakeEdit ? TakeEdit(edit) : Takes(edit))) {
        Changed(); // the text stands, and a view that ran ahead reads it again
        return;
    }
    const std::string text = edit.After();
    SelLength.Assign(0);
    SelStart.Assign(edit.start + static_cast<int>(Len(edit.inserted)));
    if (Text == text) {
        Changed();
    } else {
        changing_ = ChangedBy::User;
        Text = text;
    }
}

void TextControl::UserSelected(int start, int length) {
    SelStart = start;
    SelLength = length;
}

void TextControl::PropertyChanged(const void* property) {
    // Taken at once: what the handlers below write into this control is the program's.
    const ChangedBy changedBy = std::exchange(changing_, ChangedBy::Program);
    if (property == &Text) {
        const int length = static_cast<int>(Len(Text()));
        SelStart.Assign(std::min(SelStart(), length));
        SelLength.Assign(std::min(SelLength(), length - SelStart()));
        if (changedBy == ChangedBy::User) {
            Remark.Assign("");
        }
    }
    Control::PropertyChanged(property);
    if (property == &Text) {
        TextChange(changedBy);
    }
}

std::string TextField::DisplayText() const {
    if (Format().empty() || HasFocus() || !IsNumeric(Text())) {
        return Text();
    }
    return LTrim(tessarolyne::Format(CDbl(Text()), Format()));
}

bool TextField::Takes(TextEdit& edit) const {
    const bool inserts = !edit.inserted.empty();
    edit.inserted = OneLine(edit.inserted);
    return !inserts || (!edit.inserted.empty() && tessarolyne::Mask(Mask()).Holds(edit.After()));
}

} // namespace tessarolyne

#include "platform/TextControls.h"

#include "platform/Numbers.h"
#include "platform/Text.h"

#include <algorithm>

namespace tessarolyne {

Mask::Mask(std::string_view mask) {
    const std::size_t point = std::min(mask.find('.'), mask.size());
    point_ = point < mask.size();
    wholeDigits_ = point;
    decimals_ = point_ ? mask.size() - point - 1 : 0;
    const auto nines = static_cast<std::size_t>(std::count(mask.begin(), mask.end(), '9'));
    filters_ = nines > 0 && nines == wholeDigits_ + decimals_;
}

bool Mask::Fits(std::string_view text) const {
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::size_t decimals = point < text.size() ? text.size() - point - 1 : 0;
    if (point > wholeDigits_ || decimals > decimals_ || (point < text.size() && !point_)) {
        return false;
    }
    return std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(point), IsDigit) &&
           std::all_of(text.end() - static_cast<std::ptrdiff_t>(decimals), text.end(), IsDigit);
}

bool Mask::Holds(std::string_view text) const {
    return !filters_ || Fits(WithoutBlanks(text));
}

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
    return tessarolyne::Format(CDbl(Text()), Format());
}

bool TextField::Takes(TextEdit& edit) const {
    const bool inserts = !edit.inserted.empty();
    edit.inserted = OneLine(edit.inserted);
    return !inserts || (!edit.inserted.empty() && tessarolyne::Mask(Mask()).Holds(edit.After()));
}

} // namespace tessarolyne

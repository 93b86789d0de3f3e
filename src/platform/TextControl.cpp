#include "platform/TextControl.h"

#include "platform/Text.h"

#include <algorithm>
#include <utility>

namespace tessarolyne {

void TextControl::UserReplaced(int start, int removed, const std::string& inserted) {
    if (ReadOnly() || !TakesInput()) {
        return;
    }
    const int length = static_cast<int>(Len(Text()));
    start = std::clamp(start, 0, length);
    removed = std::clamp(removed, 0, length - start);
    if (!inserted.empty() && GivesWay()) {
        start = 0;
        removed = length;
    }
    const std::string cleaned = CleanInserted ? CleanInserted(inserted) : inserted;
    const std::string accepted = Accepted(start, removed, cleaned);
    if (accepted.empty() && !inserted.empty()) {
        Changed(); // nothing of it fits: the text stands, and a view that ran ahead reads it again
        return;
    }
    const std::string text = tessarolyne::Left(Text(), start) + accepted + Mid(Text(), start + removed + 1);
    SelLength.Assign(0);
    SelStart.Assign(start + static_cast<int>(Len(accepted)));
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

std::string TextControl::Accepted(int, int, const std::string& inserted) const {
    return inserted;
}

void TextControl::PropertyChanged(const void* property) {
    // Taken at once: what the handlers below write into this control is the program's.
    const ChangedBy changedBy = std::exchange(changing_, ChangedBy::Program);
    if (property == &Text) {
        const int length = static_cast<int>(Len(Text()));
        SelStart.Assign(std::min(SelStart(), length));
        SelLength.Assign(std::min(SelLength(), length - SelStart()));
    }
    Control::PropertyChanged(property);
    if (property == &Text) {
        TextChange(changedBy);
    }
}

} // namespace tessarolyne

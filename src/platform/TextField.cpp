#include "platform/TextField.h"

#include "platform/Numbers.h"
#include "platform/Text.h"

namespace tessarolyne {

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

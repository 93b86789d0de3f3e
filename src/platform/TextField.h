#pragma once

#include "platform/Mask.h"
#include "platform/TextControl.h"

#include <string>

namespace tessarolyne {

// One line of text. The mask binds the user alone; the program may set any text. While the field is without
// the focus, a number in it is shown through Format, if there is one; the text itself stays as it is.
class TextField final : public TextControl {
public:
    using TextControl::TextControl;

    // What the field shows now.
    std::string DisplayText() const;

    Property<std::string> Mask{*this};
    Property<std::string> Format{*this};
    Property<Alignment> TextAlignment{*this, Alignment::Left};

    // Shows the whole of its text, in smaller type where it must, but while it is being edited.
    Property<bool> ShowsAll{*this, false};

protected:
    // Line ends and other controls are left out of what comes in, and the rest must fit the mask.
    bool Takes(TextEdit& edit) const override;
};

} // namespace tessarolyne

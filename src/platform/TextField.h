#pragma once

#include "platform/Mask.h"
#include "platform/TextControl.h"

#include <string>

namespace tessarolyne {

// One line of text. The mask binds the user alone: the program may set any text, and one that the mask would
// not let through gives way to the first character that the user types. While the field is without
// the focus, a number in it is shown through Format, if there is one; the text itself stays as it is.
class TextField final : public TextControl {
public:
    using TextControl::TextControl;

    // What the field shows now.
    std::string DisplayText() const;

    Property<std::string> Mask{*this};
    Property<std::string> Format{*this};
    Property<Alignment> TextAlignment{*this, Alignment::Left};

protected:
    std::string Accepted(int start, int removed, const std::string& inserted) const override;
    bool GivesWay() const override;
};

} // namespace tessarolyne

#pragma once

#include "platform/Control.h"

#include <string>

namespace tessarolyne {

// A frame with a caption round the controls whose parent it is.
class GroupBox final : public Control {
public:
    using Control::Control;

    Property<std::string> Caption{*this};
};

} // namespace tessarolyne

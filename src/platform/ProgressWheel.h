#pragma once

#include "platform/Control.h"

namespace tessarolyne {

// Turns while it is visible, to say that something goes on.
class ProgressWheel final : public Control {
public:
    using Control::Control;
};

} // namespace tessarolyne

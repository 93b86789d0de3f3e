#pragma once

#include "platform/Control.h"

#include <cstdint>
#include <string>

namespace tessarolyne {

// Turns while it is visible, to say that something goes on. Who can't see it turn is told by its name what
// that is, and how far it is.
class ProgressWheel final : public Control {
public:
    using Control::Control;

    // How far it is, up to Maximum; a Maximum of 0: not known.
    Property<std::int64_t> Maximum{*this, 0};
    Property<std::int64_t> Value{*this, 0};
    // The same in words that a screen reader adds to the name. Each change may be spoken, so it changes more
    // rarely than what the eye sees of it, the HelpTag.
    Property<std::string> Spoken{*this};
};

} // namespace tessarolyne

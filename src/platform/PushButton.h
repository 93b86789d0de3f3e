#pragma once

#include "platform/Control.h"

#include <string>

namespace tessarolyne {

// A button that acts when pressed. The default button answers Return, the cancel button Escape.
class PushButton final : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return true; }

    // Presses the button, if it is enabled.
    void Push() {
        if (Enabled()) {
            Action();
        }
    }
    void UserPressed() {
        if (TakesInput()) {
            Action();
        }
    }

    Property<std::string> Caption{*this};
    Property<int> TextSize{*this, 0}; // points; 0 is the system's own size
    Property<bool> Default{*this, false};
    Property<bool> Cancel{*this, false};

    Event<void()> Action;
};

} // namespace tessarolyne

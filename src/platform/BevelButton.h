#pragma once

#include "platform/Control.h"
#include "platform/Picture.h"

#include <string>

namespace tessarolyne {

// A button with a state of its own that is shown pressed while Value is true. A press gives Action and leaves
// Value alone.
class BevelButton final : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return true; }

    void UserPressed() {
        if (Enabled()) {
            Action();
        }
    }

    Property<std::string> Caption{*this};
    Property<bool> Value{*this, false};
    Property<Picture> Icon{*this};
    Property<int> IconDX{*this, 0};
    Property<int> IconDY{*this, 0};

    Event<void()> Action;
    Event<void()> MouseEnter;
    Event<void()> MouseExit;
};

} // namespace tessarolyne

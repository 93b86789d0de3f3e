#pragma once

#include "platform/Control.h"
#include "platform/Picture.h"

#include <string>

namespace tessarolyne {

// A button with a picture for its face, which may have a state of its own: it is shown pressed while Value is
// true. A press gives Action and leaves Value alone.
class BevelButton final : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return true; }

    void UserPressed() {
        if (TakesInput()) {
            Action();
        }
    }

    Property<std::string> Caption{*this};
    Property<bool> Value{*this, false};
    // Value means something, and a screen reader tells it; else this is a button like any other.
    Property<bool> HasState{*this, false};
    Property<Picture> Icon{*this};
    Property<int> IconDX{*this, 0};
    Property<int> IconDY{*this, 0};

    Event<void()> Action;
    Event<void()> MouseEnter;
    Event<void()> MouseExit;
};

} // namespace tessarolyne

#pragma once

#include "platform/Control.h"

#include <string>

namespace tessarolyne {

// One of several choices: the radio buttons of one parent exclude each other. Action comes for the button
// that goes on, also when code sets it; the one that goes off for it stays silent.
class RadioButton final : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return true; }

    void UserPressed() {
        if (TakesInput()) {
            Value = true;
        }
    }

    Property<std::string> Caption{*this};
    Property<bool> Value{*this, false};

    Event<void()> Action;

protected:
    void PropertyChanged(const void* property) override;
};

} // namespace tessarolyne

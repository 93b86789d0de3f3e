#pragma once

#include "platform/Control.h"

#include <string>

namespace tessarolyne {

// A switch with a caption. Action comes for every change of Value, the program's own included.
class CheckBox final : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return true; }

    void UserPressed() {
        if (TakesInput()) {
            Value = !Value();
        }
    }

    Property<std::string> Caption{*this};
    Property<bool> Value{*this, false};

    Event<void()> Action;

protected:
    void PropertyChanged(const void* property) override {
        Control::PropertyChanged(property);
        if (property == &Value) {
            Action();
        }
    }
};

} // namespace tessarolyne

#pragma once

#include "platform/Control.h"
#include "platform/Picture.h"

#include <string>

// The controls that are pressed.
namespace tessarolyne {

// What they have in common: a caption, and Action when something comes of a press.
class Button : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return true; }

    void UserPressed() {
        if (TakesInput()) {
            Press();
        }
    }

    Property<std::string> Caption{*this};

    Event<void()> Action;

private:
    virtual void Press() { Action(); }
};

// A button that acts when pressed. The default button answers Return, the cancel button Escape.
class PushButton final : public Button {
public:
    using Button::Button;

    // Presses the button, if it is enabled.
    void Push() {
        if (Enabled()) {
            Action();
        }
    }

    Property<int> TextSize{*this, 0}; // points; 0 is the system's own size
    Property<bool> Default{*this, false};
    Property<bool> Cancel{*this, false};
};

// A button with a picture for its face, which may have a state of its own: it is shown pressed while Value is
// true. A press gives Action and leaves Value alone.
class BevelButton final : public Button {
public:
    using Button::Button;

    Property<bool> Value{*this, false};
    // Value means something, and a screen reader tells it; else this is a button like any other.
    Property<bool> HasState{*this, false};
    Property<Picture> Icon{*this};
    Property<int> IconDX{*this, 0};
    Property<int> IconDY{*this, 0};

    Event<void()> MouseEnter;
    Event<void()> MouseExit;
};

// A switch with a caption. Action comes for every change of Value, the program's own included.
class CheckBox final : public Button {
public:
    using Button::Button;

    Property<bool> Value{*this, false};

private:
    void Press() override { Value = !Value(); }
    void PropertyChanged(const void* property) override;
};

// One of several choices: the radio buttons of one parent exclude each other. Action comes for the button
// that goes on, also when code sets it; the one that goes off for it stays silent.
class RadioButton final : public Button {
public:
    using Button::Button;

    Property<bool> Value{*this, false};

private:
    void Press() override { Value = true; }
    void PropertyChanged(const void* property) override;
};

} // namespace tessarolyne

#pragma once

#include "platform/Window.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// The kinds of controls: what is pressed, what only shows something, what holds a text, and the choice of a
// row.
namespace tessarolyne {

// A picture: a resource by its name, or an area of one colour (0xRRGGBB).
struct Picture {
    std::string resource;
    int width = 0;
    int height = 0;
    std::uint32_t fill = 0;

    bool operator==(const Picture&) const = default;
};

enum class Alignment { Default = 0, Left = 1, Center = 2, Right = 3 };

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
    void PropertyChanged(const void* property) override {
        Control::PropertyChanged(property);
        if (property == &Value) {
            Action();
        }
    }
};

// One of several choices: the radio buttons of one parent exclude each other. Action comes for the button
// that goes on, also when code sets it; the one that goes off for it stays silent.
class RadioButton final : public Button {
public:
    using Button::Button;

    Property<bool> Value{*this, false};

private:
    void Press() override { Value = true; }
    void PropertyChanged(const void* property) override {
        if (property == &Value && Value()) {
            for (Control* control : GetWindow().Controls()) {
                auto* other = dynamic_cast<RadioButton*>(control);
                if (other != nullptr && other != this && other->Parent() == Parent()) {
                    other->Value = false;
                }
            }
        }
        Control::PropertyChanged(property);
        if (property == &Value && Value()) {
            Action();
        }
    }
};

// What answers the mouse, and as a link takes the focus so that the keyboard can follow it too.
class LinkControl : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return IsLink(); }

    // True: the press was taken, and its release is to be told.
    bool UserPressed(int x, int y) { return TakesInput() && MouseDown(x, y); }

    Property<bool> IsLink{*this, false};

    Event<bool(int x, int y)> MouseDown;
    Event<void(int x, int y)> MouseUp;
    Event<void()> MouseEnter;
    Event<void()> MouseExit;
};

// A line of text that the user only reads; as a link it shows an address. As an overlay it covers the window
// and answers every press.
class Label : public LinkControl {
public:
    using LinkControl::LinkControl;

    bool UserPressed(int x, int y) { return IsOverlay() ? MouseDown(x, y) : LinkControl::UserPressed(x, y); }

    Property<std::string> Text{*this};
    Property<Alignment> TextAlignment{*this, Alignment::Left};
    Property<bool> IsOverlay{*this, false};
};

// A frame with a caption round the controls whose parent it is.
class GroupBox final : public Control {
public:
    using Control::Control;

    Property<std::string> Caption{*this};
};

// An area that shows one picture at its top left.
class Canvas final : public LinkControl {
public:
    using LinkControl::LinkControl;

    Property<Picture> Image{*this};
};

// How far something is, from 0 to Maximum. A Value beyond is shown as full; a Maximum of 0 as not known.
class ProgressBar final : public Control {
public:
    using Control::Control;

    Property<std::int64_t> Maximum{*this, 100};
    Property<std::int64_t> Value{*this, 0};
};

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

// A choice of one row among several. Change comes whenever ListIndex changes, by the user or by code. -1 is
// no row.
class PopupMenu final : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return true; }

    // Rows are added at the end; without rows none is chosen. Neither gives Change.
    void AddRow(std::string text) {
        rows_.push_back(std::move(text));
        Changed();
    }
    void DeleteAllRows() {
        rows_.clear();
        ListIndex.Assign(-1);
        Changed();
    }
    const std::vector<std::string>& Rows() const { return rows_; }
    // The text of the chosen row, or nothing.
    std::string Text() const {
        return ListIndex() < 0 ? std::string() : rows_.at(static_cast<std::size_t>(ListIndex()));
    }

    void UserChose(int index) {
        if (TakesInput()) {
            ListIndex = index;
        }
    }

    Property<int> ListIndex{*this, -1};

    Event<void()> Change;

private:
    void PropertyChanged(const void* property) override {
        Control::PropertyChanged(property);
        if (property == &ListIndex) {
            Change();
        }
    }

    std::vector<std::string> rows_;
};

} // namespace tessarolyne

#pragma once

#include "platform/Control.h"
#include "platform/Picture.h"
#include "platform/TextControls.h"

#include <cstdint>
#include <string>

// The controls that only show something, or show it and answer the mouse.
namespace tessarolyne {

// A line of text that the user only reads. As a link it shows an address and answers the mouse, and takes the
// focus so that the keyboard can follow it too. As an overlay it covers the window and answers every press.
class Label : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return IsLink(); }

    // True: the press was taken, and its release is to be told.
    bool UserPressed(int x, int y) { return (IsOverlay() || TakesInput()) && MouseDown(x, y); }

    Property<std::string> Text{*this};
    Property<Alignment> TextAlignment{*this, Alignment::Left};
    Property<bool> IsLink{*this, false};
    Property<bool> IsOverlay{*this, false};

    Event<bool(int x, int y)> MouseDown;
    Event<void(int x, int y)> MouseUp;
    Event<void()> MouseEnter;
    Event<void()> MouseExit;
};

// A frame with a caption round the controls whose parent it is.
class GroupBox final : public Control {
public:
    using Control::Control;

    Property<std::string> Caption{*this};
};

// An area that shows one picture at its top left. With a link it answers the mouse and the keyboard.
class Canvas final : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return IsLink(); }

    // True: the press was taken, and its release is to be told.
    bool UserPressed(int x, int y) { return TakesInput() && MouseDown(x, y); }

    Property<Picture> Image{*this};
    Property<bool> IsLink{*this, false};

    Event<bool(int x, int y)> MouseDown;
    Event<void(int x, int y)> MouseUp;
    Event<void()> MouseEnter;
    Event<void()> MouseExit;
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

} // namespace tessarolyne

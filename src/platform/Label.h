#pragma once

#include "platform/Control.h"
#include "platform/TextControl.h"

#include <string>

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

} // namespace tessarolyne

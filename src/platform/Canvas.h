#pragma once

#include "platform/Control.h"
#include "platform/Picture.h"

namespace tessarolyne {

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

} // namespace tessarolyne

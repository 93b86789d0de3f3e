#include "platform/Control.h"

#include "platform/Window.h"

namespace tessarolyne {

Control::Control(Window& window, std::string name, Place place, Locks locks, TabTurn tab, Control* parent)
    : Name(std::move(name)), Left(*this, place.Left), Top(*this, place.Top), Width(*this, place.Width),
      Height(*this, place.Height), LockLeft(*this, locks.Left), LockTop(*this, locks.Top),
      LockRight(*this, locks.Right), LockBottom(*this, locks.Bottom), window_(window), parent_(parent),
      tab_(tab) {
    window_.Add(*this);
}

Control::~Control() {
    window_.Remove(*this);
}

bool Control::HasFocus() const {
    return window_.Focus() == this;
}

void Control::SetFocus() {
    if (TakesFocus() && Enabled() && Visible()) {
        window_.MoveFocus(this);
    }
}

void Control::PropertyChanged(const void*) {
    Changed();
}

} // namespace tessarolyne

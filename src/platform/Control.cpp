#include "platform/Control.h"

#include "platform/Application.h"
#include "platform/Services.h"
#include "platform/Window.h"

namespace tessarolyne {

Control::Control(Window& window, std::string name, Place place, Locks locks, TabTurn tab, Control* parent)
    : Name(std::move(name)), Left(*this, place.left), Top(*this, place.top), Width(*this, place.width),
      Height(*this, place.height), LockLeft(*this, locks.left), LockTop(*this, locks.top),
      LockRight(*this, locks.right), LockBottom(*this, locks.bottom), window_(window), parent_(parent),
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

void Control::UserFocused() {
    if (window_.GetApplication().LetsUserInto(window_)) {
        SetFocus();
    }
}

bool Control::UserPressedKey(const std::string& key) {
    return Enabled() && window_.GetApplication().LetsUserInto(window_) && KeyDown(key);
}

bool Control::TakesInput() const {
    const Application& application = window_.GetApplication();
    if (!application.LetsUserInto(window_)) {
        application.GetServices().sounds.Beep();
        return false;
    }
    return Enabled();
}

void Control::PropertyChanged(const void*) {
    Changed();
}

} // namespace tessarolyne

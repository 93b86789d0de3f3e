#include "platform/Window.h"

#include "platform/Application.h"
#include "platform/EventLoop.h"
#include "platform/Services.h"

#include <algorithm>

namespace tessarolyne {

Control::Control(Window& window, std::string name, Place place, Locks locks, TabTurn tab, Control* parent)
    : Name(std::move(name)), Lock(locks), Left(*this, place.left), Top(*this, place.top),
      Width(*this, place.width), Height(*this, place.height), window_(window), parent_(parent), tab_(tab) {
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

Window::Window(Application& application, std::string title, int width, int height, WindowFrame frame)
    : Frame(frame), Title(*this, std::move(title)), Width(*this, width), Height(*this, height),
      application_(application) {
    application_.Add(*this);
}

Window::~Window() {
    application_.Remove(*this);
}

void Window::Show() {
    if (closed_) {
        return;
    }
    if (!presented_) {
        presented_ = true;
        application_.GetServices().stage.Present(*this);
    }
    takesKeyboard_ = !application_.ShowsQuietly();
    Visible = true;
    if (takesKeyboard_) {
        Raised();
    }
}

void Window::ShowModal() {
    if (Visible()) {
        return;
    }
    Show();
    // The window may be gone when the loop asks: nothing of it is read then.
    bool gone = false;
    const Connection watch = Closed.Connect([&gone] { gone = true; });
    application_.GetServices().loop.RunUntil([&gone] { return gone; });
}

void Window::Close() {
    if (closed_ || Event_CancelClose(false) || closed_) {
        return;
    }
    closed_ = true;
    Visible = false;
    Closed();
    application_.OnWindowClosed(*this);
}

bool Window::UserPressedKey(const std::string& key) {
    return application_.LetsUserInto(*this) && Event_KeyDown(key);
}

void Window::UserPressedShortcut(const Shortcut& shortcut) {
    if (application_.LetsUserInto(*this)) {
        shortcut.action();
    }
}

void Window::UserResized(int width, int height) {
    width = std::clamp(width, Frame.minWidth, Frame.maxWidth);
    height = std::clamp(height, Frame.minHeight, Frame.maxHeight);
    const int wider = width - Width();
    const int higher = height - Height();
    Width = width;
    Height = height;
    for (Control* control : controls_) {
        if (control->Lock.right) {
            if (control->Lock.left) {
                control->Width = control->Width() + wider;
            } else {
                control->Left = control->Left() + wider;
            }
        }
        if (control->Lock.bottom) {
            if (control->Lock.top) {
                control->Height = control->Height() + higher;
            } else {
                control->Top = control->Top() + higher;
            }
        }
    }
}

std::vector<Control*> Window::TabOrder(bool stopsOnly) const {
    const auto rank = [](const Control* control) {
        const Control* parent = control->Parent();
        return parent == nullptr ? std::pair(control->TabIndex(), -1)
                                 : std::pair(parent->TabIndex(), control->TabIndex());
    };
    std::vector<Control*> order;
    std::copy_if(controls_.begin(), controls_.end(), std::back_inserter(order), [&](const Control* control) {
        return control->TakesFocus() && (control->IsTabStop() || !stopsOnly);
    });
    std::stable_sort(order.begin(), order.end(),
        [&](const Control* left, const Control* right) { return rank(left) < rank(right); });
    return order;
}

std::vector<Control*> Window::SightOrder() const {
    constexpr int lineHeight = 10; // tops within it stand on one line
    std::vector<Control*> order = TabOrder(false);
    std::stable_sort(order.begin(), order.end(),
        [](const Control* left, const Control* right) { return left->Top() < right->Top(); });
    for (auto line = order.begin(); line != order.end();) {
        const int bottom = (*line)->Top() + lineHeight;
        const auto next =
            std::find_if(line, order.end(), [&](const Control* control) { return control->Top() >= bottom; });
        std::stable_sort(line, next,
            [](const Control* left, const Control* right) { return left->Left() < right->Left(); });
        line = next;
    }
    return order;
}

void Window::MoveFocus(Control* control) {
    if (control == focus_) {
        return;
    }
    Control* const before = std::exchange(focus_, control);
    if (before != nullptr) {
        before->Notice = "";
        before->LostFocus();
        before->Changed();
    }
    if (focus_ == control && control != nullptr) {
        control->GotFocus();
        control->Changed();
    }
    FocusMoved();
}

void Window::Remove(Control& control) {
    std::erase(controls_, &control);
    if (focus_ == &control) {
        focus_ = nullptr;
    }
}

} // namespace tessarolyne

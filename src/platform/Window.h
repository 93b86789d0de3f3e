#pragma once

#include "platform/Control.h"
#include "platform/Event.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tessarolyne {

class Application;

enum class Cursor { None, Standard, Finger };

// How a window may be sized and closed; fixed for its life.
struct WindowFrame {
    enum class Kind { Document, MovableModal };
    Kind kind = Kind::Document;
    bool closeButton = true;
    bool minimizeButton = true;
    bool maximizeButton = false;
    bool resizeable = false;
    int minWidth = 64;
    int minHeight = 64;
    int maxWidth = 32000;
    int maxHeight = 32000;
    bool blocksOthers = true; // MovableModal: false where the other windows may be closed while it is up
};

// A window as a model: its place, its controls, who of them has the focus, and the events that its class
// answers by overriding the Event_ methods. It works without a screen; the stage draws it once it is shown.
class Window : public PropertyOwner {
public:
    Window(Application& application, std::string title, int width, int height, WindowFrame frame);
    ~Window() override;

    // Puts the window on the stage, in front; nothing once it has closed. While the application shows quietly
    // (QuietShowing), the keyboard stays with the window that has it.
    void Show();
    bool TakesKeyboard() const { return takesKeyboard_; }
    // Shows the window and returns when it has closed or the program quits. Nothing if the window is up.
    void ShowModal();
    // Asks Event_CancelClose(false) and closes unless it refuses.
    void Close();
    bool IsClosed() const { return closed_; }
    // Draws again what is pending, without taking input.
    void Refresh() { DrawNow(); }

    void UserClosed() {
        closeIsDue_ = false;
        Close();
    }
    // The user asks for a close while the program is busy; UserClosed follows when it no longer is.
    void UserWillClose() { closeIsDue_ = true; }
    bool CloseIsDue() const { return closeIsDue_; }
    void UserMoved(int left, int top) {
        Left = left;
        Top = top;
    }
    // Changes the size, within the frame's limits; the controls follow by their locks.
    void UserResized(int width, int height);
    // A key that no control took. True: the window took it.
    bool UserPressedKey(const std::string& key);

    // Keys that work wherever the focus is in the window, as "Cmd+1", and that menus don't have; added before
    // the window is shown.
    struct Shortcut {
        std::string keys;
        std::function<void()> action;
    };
    const std::vector<Shortcut>& Shortcuts() const { return shortcuts_; }
    void UserPressedShortcut(const Shortcut& shortcut);

    // What the window's class answers: when it is whole, once, to whoever made it; before it closes (true
    // keeps it open); before menus are shown; and for a key that no control took (true: it has no further
    // effect).
    virtual void Event_Open() {}
    virtual bool Event_CancelClose([[maybe_unused]] bool appQuitting) { return false; }
    virtual void Event_EnableMenuItems() {}
    virtual bool Event_KeyDown([[maybe_unused]] const std::string& key) { return false; }

    Application& GetApplication() const { return application_; }
    const std::vector<Control*>& Controls() const { return controls_; }
    // The controls that can take the focus, in the order in which Tab visits them: by the parents' indexes,
    // then by their own. With `stopsOnly` those that Tab stops at, else all.
    std::vector<Control*> TabOrder(bool stopsOnly) const;
    // The controls that can take the focus as the eye meets them: line by line, each from left to right.
    std::vector<Control*> SightOrder() const;

    // The control with the focus, or null. A move gives LostFocus, then GotFocus.
    Control* Focus() const { return focus_; }
    void MoveFocus(Control* control);

    const WindowFrame Frame;
    Property<std::string> Title;
    Property<int> Left{*this, 0};
    Property<int> Top{*this, 0};
    Property<int> Width;
    Property<int> Height;
    Property<bool> Visible{*this, false};
    Property<Cursor> MouseCursor{*this, Cursor::None};

    // After any change of the window's own properties; after its focus moved; when it wants to be in front;
    // and when it has closed.
    Signal<> Changed;
    Signal<> FocusMoved;
    Signal<> Raised;
    Signal<> Closed;
    // Given by Refresh: draw what is pending now.
    Signal<> DrawNow;

protected:
    void AddShortcut(std::string keys, std::function<void()> action) {
        shortcuts_.push_back({std::move(keys), std::move(action)});
    }

private:
    friend class Control;
    void Add(Control& control) { controls_.push_back(&control); }
    void Remove(Control& control);
    void PropertyChanged(const void*) override { Changed(); }

    Application& application_;
    std::vector<Control*> controls_;
    std::vector<Shortcut> shortcuts_;
    Control* focus_ = nullptr;
    bool closed_ = false;
    bool closeIsDue_ = false;
    bool presented_ = false;
    bool takesKeyboard_ = true;
};

} // namespace tessarolyne

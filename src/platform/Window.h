#pragma once

#include "platform/Event.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tessarolyne {

class Application;
class Window;

// The edges of its window to which a control keeps its distance when the window changes size.
struct Locks {
    bool left = true;
    bool top = true;
    bool right = false;
    bool bottom = false;
};
inline constexpr Locks lockLeftTop{};
inline constexpr Locks lockTopRight{false, true, true, false};
inline constexpr Locks lockLeftTopRight{true, true, true, false};
inline constexpr Locks lockLeftBottom{true, false, false, true};
inline constexpr Locks lockRightBottom{false, false, true, true};
inline constexpr Locks lockAll{true, true, true, true};

// A control's turn among those that Tab visits: its index within its parent, and whether Tab stops there.
struct TabTurn {
    int index = 0;
    bool stop = false;
};
constexpr TabTurn TabStop(int index) {
    return {index, true};
}
constexpr TabTurn NoTabStop(int index) {
    return {index, false};
}

// Where a control stands, in points from the top left of its window, also inside a group box.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// A thing with a place on a window. It owns its state and works without a screen; whatever draws it observes
// `Changed` and reads the state again. The methods whose names begin with User are what a person does to it.
class Control : public PropertyOwner {
public:
    Control(
        Window& window, std::string name, Place place, Locks locks, TabTurn tab, Control* parent = nullptr);
    ~Control() override;

    Window& GetWindow() const { return window_; }
    Control* Parent() const { return parent_; }
    int TabIndex() const { return tab_.index; }
    bool IsTabStop() const { return tab_.stop; }

    // Whether the control can hold the focus at all; labels and group boxes can't.
    virtual bool TakesFocus() const { return false; }
    bool HasFocus() const;
    // Moves the focus here if the control can take it now: the old holder's LostFocus, then GotFocus.
    void SetFocus();

    // What a person does, by whatever means, comes to nothing while the control is disabled, or its window is
    // behind something modal; a press or an edit there is answered with a beep.
    void UserFocused();
    // The key goes to the control first. True: the control took it, and it has no further effect.
    bool UserPressedKey(const std::string& key);

    const std::string Name;
    Locks Lock;
    Property<int> Left;
    Property<int> Top;
    Property<int> Width;
    Property<int> Height;
    Property<bool> Visible{*this, true};
    Property<bool> Enabled{*this, true};
    Property<std::string> HelpTag{*this};
    // What a pointer at rest and a screen reader are told beside the name and the content.
    virtual std::string Explanation() const { return HelpTag; }
    // The letter, as its caption has it, that with Alt presses the control or brings the keyboard to
    // AltTarget.
    Property<std::string> AltKey{*this};
    Control* AltTarget = nullptr;
    // The keys that do here what the mouse does, for the help tag's end.
    Property<std::string> KeyTag{*this};
    // What a screen reader calls the control where it has no caption of its own.
    Property<std::string> AccessibleName{*this};
    // What Notify said last; empty once the user goes on or away. A screen reader adds it to the name.
    Property<std::string> Notice{*this};

    Event<void()> GotFocus;
    Event<void()> LostFocus;
    Event<bool(const std::string& key)> KeyDown;

    // Says something about what the user just did here, for a moment and without a dialog.
    void Notify(const std::string& text) {
        Notice = text;
        Notified(text);
    }
    Signal<const std::string&> Notified;

    // Given after any change of the control's state.
    Signal<> Changed;

protected:
    void PropertyChanged(const void*) override { Changed(); }
    // Whether a press or an edit by the user counts.
    bool TakesInput() const;

private:
    Window& window_;
    Control* const parent_;
    const TabTurn tab_;
};

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

// A window as a model: its place, its controls, which of them has the focus, and the events that its class
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
    // Draws again what is pending, without taking input.
    Signal<> Refresh;

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

#pragma once

#include "platform/Event.h"

#include <string>

namespace tessarolyne {

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
    Property<int> Left;
    Property<int> Top;
    Property<int> Width;
    Property<int> Height;
    Property<bool> LockLeft;
    Property<bool> LockTop;
    Property<bool> LockRight;
    Property<bool> LockBottom;
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
    void PropertyChanged(const void* property) override;
    // Whether a press or an edit by the user counts.
    bool TakesInput() const;

private:
    Window& window_;
    Control* const parent_;
    const TabTurn tab_;
};

} // namespace tessarolyne

#pragma once

#include "platform/Control.h"

#include <functional>
#include <string>

namespace tessarolyne {

// Whose doing a change of text is: what comes in by the User… methods is the user's, all else the program's.
enum class ChangedBy { Program, User };

enum class Alignment { Default = 0, Left = 1, Center = 2, Right = 3 };

// What text fields and text areas have in common: a text, a selection in it, and the one way in which the
// user changes the text. Positions and lengths count characters.
class TextControl : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return true; }

    // Puts `inserted` in the place of `removed` characters at `start`, as far as the control lets it, and
    // leaves the caret behind it. All that the user does to the text comes through here: typing, pasting,
    // deleting, dropping.
    void UserReplaced(int start, int removed, const std::string& inserted);
    // The same in the place of the selection.
    void UserTyped(const std::string& inserted) { UserReplaced(SelStart, SelLength, inserted); }
    void UserSelected(int start, int length);

    Property<std::string> Text{*this};
    Property<int> SelStart{*this, 0};
    Property<int> SelLength{*this, 0};
    Property<bool> ReadOnly{*this, false};
    Property<int> TextSize{*this, 0}; // points; 0 is the system's own size

    // Any change of Text, the program's own included.
    Event<void(ChangedBy)> TextChange;
    // Rewrites what the user inserts before the mask sees it; none leaves it as it is.
    std::function<std::string(const std::string& inserted)> CleanInserted;

protected:
    void PropertyChanged(const void* property) override;
    // What of the insertion may stand in the text.
    virtual std::string Accepted(int start, int removed, const std::string& inserted) const;
    // Whether the text is none of the user's, such as a message: an insertion takes the place of all of it.
    virtual bool GivesWay() const { return false; }

private:
    ChangedBy changing_ = ChangedBy::Program; // of the change of Text under way
};

} // namespace tessarolyne

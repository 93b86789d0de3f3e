#pragma once

#include "platform/Control.h"

#include <functional>
#include <string>
#include <vector>

namespace tessarolyne {

// Whose doing a change of text is: what comes in by the User… methods is the user's, all else the program's.
enum class ChangedBy { Program, User };

enum class Alignment { Default = 0, Left = 1, Center = 2, Right = 3 };

// What the user does to a text: `inserted` in the place of `removed` characters at `start`, within the text.
struct TextEdit {
    // The whole text when it is done.
    std::string After() const;

    const std::string before;
    int start;
    int removed;
    std::string inserted;
};

// What text fields and text areas have in common: a text, a selection in it, and the one way in which the
// user changes the text. Positions and lengths count characters.
class TextControl : public Control {
public:
    using Control::Control;

    bool TakesFocus() const override { return true; }
    std::string Explanation() const override { return Remark().empty() ? HelpTag() : Remark(); }

    // Puts `inserted` in the place of `removed` characters at `start`, if the control takes it, and leaves
    // the caret behind it. All that the user does to the text comes through here: typing, pasting,
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
    // What the text must not be taken for: it isn't of now, or no failure. With one it is shown fainter, and
    // can be read and copied all the same; what the user changes is without.
    Property<std::string> Remark{*this};

    // Any change of Text, the program's own included.
    Event<void(ChangedBy)> TextChange;
    // Looks at what the user is about to do, and may change it. False refuses it: the text stands. Without
    // it the control's own kind decides.
    std::function<bool(TextEdit& edit)> TakeEdit;

    // What its context menu offers besides the edit commands; asked for each time that it opens.
    struct Command {
        std::string Caption;
        std::function<void()> Action;
    };
    std::function<std::vector<Command>()> ContextCommands;
    void UserChoseCommand(const Command& command) {
        if (TakesInput()) {
            command.Action();
        }
    }

protected:
    void PropertyChanged(const void* property) override;
    // What TakeEdit does where the program gives none.
    virtual bool Takes(TextEdit&) const { return true; }

private:
    ChangedBy changing_ = ChangedBy::Program; // of the change of Text under way
};

} // namespace tessarolyne

#pragma once

#include "platform/Controls.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarolyne {

// What a text field lets its user write: up to so many digits, with a point and up to so many digits behind
// it, as in "999999999999.99" or "999". It judges insertions only: deleting is always allowed, and texts that
// the program sets don't come here. It isn't the mask by which numbers are shown (see Format).
class Mask {
public:
    // Each "9" is one digit that may stand there, "." the point. An empty mask, or one with any other
    // character, lets everything through.
    explicit Mask(std::string_view mask = {});

    // Whether the text is what the user may have written so far; a message isn't. A number shown with blanks
    // (U+0020) is judged without them; beginnings of numbers, such as "." and "12.", fit.
    bool Holds(std::string_view text) const;
    // How many digits may stand before and behind the point.
    std::size_t WholeDigits() const { return wholeDigits_; }
    std::size_t Decimals() const { return decimals_; }

private:
    bool Fits(std::string_view text) const;

    bool filters_ = false;
    bool point_ = false;
    std::size_t wholeDigits_ = 0;
    std::size_t decimals_ = 0;
};

// Whose doing a change of text is: what comes in by the User… methods is the user's, all else the program's.
enum class ChangedBy { Program, User };

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
    void UserSelected(int start, int length) {
        SelStart = start;
        SelLength = length;
    }

    Property<std::string> Text{*this};
    Property<int> SelStart{*this, 0};
    Property<int> SelLength{*this, 0};
    Property<bool> ReadOnly{*this, false};
    Property<int> TextSize{*this, 0}; // points; 0 is the system's own size
    // Why the text must not be taken for the current result or for a failure. With a remark it is shown
    // fainter, and can be read and copied all the same; an edit by the user takes the remark away.
    Property<std::string> Remark{*this};

    // Any change of Text, the program's own included.
    Event<void(ChangedBy)> TextChange;
    // Looks at what the user is about to do, and may change it. False refuses it: the text stands. Without
    // it the control's own kind decides.
    std::function<bool(TextEdit& edit)> TakeEdit;

    // What its context menu offers besides the edit commands; asked for each time that it opens.
    struct Command {
        std::string caption;
        std::function<void()> action;
    };
    std::function<std::vector<Command>()> ContextCommands;
    void UserChoseCommand(const Command& command) {
        if (TakesInput()) {
            command.action();
        }
    }

protected:
    void PropertyChanged(const void* property) override;
    // What TakeEdit does where the program gives none.
    virtual bool Takes(TextEdit&) const { return true; }

private:
    ChangedBy changing_ = ChangedBy::Program; // of the change of Text under way
};

// One line of text. The mask binds the user alone; the program may set any text. While the field is without
// the focus, a number in it is shown through Format, if there is one; the text itself stays as it is.
class TextField final : public TextControl {
public:
    using TextControl::TextControl;

    // What the field shows now.
    std::string DisplayText() const;

    Property<std::string> Mask{*this};
    Property<std::string> Format{*this};
    Property<Alignment> TextAlignment{*this, Alignment::Left};

    // Shows the whole of its text, in smaller type where it must, but while it is being edited.
    Property<bool> ShowsAll{*this, false};

protected:
    // Line ends and other controls are left out of what comes in, and the rest must fit the mask.
    bool Takes(TextEdit& edit) const override;
};

// A stretch of a styled text, in characters.
struct TextStyle {
    int start = 0;
    int length = 0;
    bool bold = false;
    bool underline = false;
    int textSize = 0; // points; 0 is the area's own

    bool operator==(const TextStyle&) const = default;
};

// Several lines of text with a vertical scroll bar. Line breaks are CR, LF or both.
class TextArea final : public TextControl {
public:
    using TextControl::TextControl;

    // A new Text starts without any.
    Property<std::vector<TextStyle>> Styles{*this};

    // Into how many columns tab stops divide the area's width, the text behind each tab ending at its stop; 0
    // is the platform's own way.
    Property<int> TabColumns{*this, 0};

protected:
    void PropertyChanged(const void* property) override {
        if (property == &Text) {
            Styles.Assign({});
        }
        TextControl::PropertyChanged(property);
    }
};

} // namespace tessarolyne

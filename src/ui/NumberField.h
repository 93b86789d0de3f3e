#pragma once

#include "platform/TextControls.h"
#include "ui/WrittenNumber.h"

#include <functional>
#include <string>
#include <vector>

// What fields and areas with a number have in common.
namespace tessarolyne {

class Fncts;

// Lets the user write a number within the field's mask, and says of each key and paste that isn't taken why.
class NumberField {
public:
    NumberField(TextField& field, Fncts& fncts);

    // The field was left, and the user comes back to what it shows.
    void Forget() { typing_.Forget(); }

private:
    bool Take(TextEdit& edit);
    std::string Why(NumberTyping::Refusal refusal) const;

    TextField& field_;
    Fncts& fncts_;
    NumberTyping typing_;
};

// One beep, and what the field says about it for a moment.
void RefuseEdit(TextField& field, Fncts& fncts, const std::string& why);

// A text area that speaks of the number in a field, and is dimmed while another one stands there.
class NumberOutput {
public:
    NumberOutput(TextArea& area, const TextField& number) : area_(area), field_(number) {}

    // `remark` is shown beside the text as long as it belongs to the number that stands there.
    void Write(const std::string& text, const std::string& remark = {});
    // Dims the text, or no longer, after a change of the number that leaves the text alone.
    void Compare();

private:
    // In the one form that doesn't depend on grouping and focus.
    std::string NumberShown() const;

    TextArea& area_;
    const TextField& field_;
    std::string number_;
    std::string remark_;
};

// Where an error stands for no other reason than the cents of the number, which the words can tell: what to
// say of it.
std::string OnlyCentsAreWrong(const TextField& number);

// Has the control's context menu offer, besides copying what is shown, the number without the blanks between
// its groups, and what `further` makes of that.
using FurtherCopies =
    std::function<void(const std::string& bare, std::vector<TextControl::Command>& commands)>;
void OfferCopies(TextControl& source, Fncts& fncts, FurtherCopies further = {});

// A command that puts the text on the clipboard.
TextControl::Command CopyCommand(Fncts& fncts, const std::string& caption, const std::string& text);

} // namespace tessarolyne

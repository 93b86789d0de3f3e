#pragma once

#include "ui/NumberTyping.h"

#include <string>

namespace tessarolyne {

class Fncts;
class TextField;

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

} // namespace tessarolyne

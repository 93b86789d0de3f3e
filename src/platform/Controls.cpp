#include "platform/Controls.h"

namespace tessarolyne {

void CheckBox::PropertyChanged(const void* property) {
    Control::PropertyChanged(property);
    if (property == &Value) {
        Action();
    }
}

void RadioButton::PropertyChanged(const void* property) {
    if (property == &Value && Value()) {
        for (Control* control : GetWindow().Controls()) {
            auto* other = dynamic_cast<RadioButton*>(control);
            if (other != nullptr && other != this && other->Parent() == Parent()) {
                other->Value = false;
            }
        }
    }
    Control::PropertyChanged(property);
    if (property == &Value && Value()) {
        Action();
    }
}

} // namespace tessarolyne

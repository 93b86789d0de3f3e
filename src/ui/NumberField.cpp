#include "ui/NumberField.h"

#include "platform/Numbers.h"
#include "platform/TextControls.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"

namespace tessarolyne {

NumberField::NumberField(TextField& field, Fncts& fncts) : field_(field), fncts_(fncts) {
    field.TakeEdit = [this](TextEdit& edit) { return Take(edit); };
}

bool NumberField::Take(TextEdit& edit) {
    const DecimalSign sign = Localisation::A_SigneDecimal() == "," ? DecimalSign::Comma : DecimalSign::Point;
    const auto refusal = typing_.Take(edit, Mask(field_.Mask()), sign);
    if (refusal == NumberTyping::Refusal::None) {
        return true;
    }
    RefuseEdit(field_, fncts_, Why(refusal));
    return false;
}

std::string NumberField::Why(NumberTyping::Refusal refusal) const {
    const Mask mask(field_.Mask());
    switch (refusal) {
    case NumberTyping::Refusal::TooManyDigits: {
        const std::string text = Localisation::Txt_RefusChiffres();
        return fncts_.FracTexte(text, 1) + Str(mask.WholeDigits()) + fncts_.FracTexte(text, 2);
    }
    case NumberTyping::Refusal::TooManyDecimals:
        return mask.Decimals() > 0 ? Localisation::Txt_RefusDecimales() : Localisation::Txt_RefusEntier();
    case NumberTyping::Refusal::Minus:
        return Localisation::Txt_RefusMoins();
    default:
        return Localisation::Txt_RefusNombre();
    }
}

void RefuseEdit(TextField& field, Fncts& fncts, const std::string& why) {
    fncts.Beep();
    field.Notify(why);
}

} // namespace tessarolyne

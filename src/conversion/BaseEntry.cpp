// What the user may write in the base field. Keys are all taken, since the base may be chosen after the
// digits; a paste is taken whole or not at all.

#include "conversion/BaseDigits.h"
#include "conversion/WinMain.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "ui/Localisation.h"
#include "ui/NumberField.h"

namespace tessarolyne {

std::string WinMain::SourceDigits() const {
    return BareDigits(EditFieldBaseOrg.Text(), PopupMenuBaseOrg.ListIndex + 2, Alphabet());
}

bool WinMain::TakeBaseEdit(TextEdit& edit) {
    if (edit.inserted.empty()) {
        return true;
    }
    if (IsErrorText(edit.before)) {
        edit.start = 0;
        edit.removed = static_cast<int>(Len(edit.before));
    }
    const int base = PopupMenuBaseOrg.ListIndex + 2;
    const std::string text = Localisation::Txt_RefusBase();
    const std::string why = fncts.FracTexte(text, 1) + Str(base) + fncts.FracTexte(text, 2);
    if (Len(edit.inserted) == 1 && OneLine(edit.inserted) == edit.inserted) {
        if (!AreDigits(BareDigits(edit.After(), base, Alphabet()), base, Alphabet())) {
            EditFieldBaseOrg.Notify(why); // the beep comes with the error that the other fields show
        }
        return true;
    }
    const auto digits = DigitsAsPasted(edit.inserted, base, Alphabet());
    if (!digits) {
        RefuseEdit(EditFieldBaseOrg, fncts, why);
        return false;
    }
    edit.inserted = *digits;
    return true;
}

} // namespace tessarolyne

// From a keystroke in one of the two number fields to the recalculation of everything.

#include "conversion/NumberFormat.h"
#include "conversion/WinMain.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "ui/Localisation.h"

namespace tessarolyne {

// Whether a field shows one of the two texts that stand for a number there is none of.
bool WinMain::IsErrorText(std::string_view text) const {
    return text == Localisation::Txt_ErrNbre() || text == Localisation::Txt_ErrBase();
}

void WinMain::EditFieldNbre_GotFocus(TextField& champ) {
    if (!app.initProg || FocusNbre) {
        return;
    }
    FocusNbre = true;
    app.initProg = false;
    const std::string bare = WithoutBlanks(champ.Text());
    if (IsNumeric(bare)) {
        champ.Text = bare;
    }
    champ.SelStart = static_cast<int>(Len(champ.Text()));
    app.initProg = true;
}

void WinMain::EditFieldBaseOrg_GotFocus(TextField& champ) {
    if (!app.initProg || FocusBase) {
        return;
    }
    FocusBase = true;
    app.initProg = false;
    if (!IsErrorText(champ.Text())) {
        champ.Text = WithoutBlanks(champ.Text());
    }
    champ.SelStart = static_cast<int>(Len(champ.Text()));
    app.initProg = true;
}

// The flag falls before the text is set, so that the change of text is no input.
void WinMain::EditFieldNbre_LostFocus(TextField& champ) {
    if (app.initProg && FocusNbre) {
        FocusNbre = false;
        champ.Text = FormatNbre(champ.Text(), CheckBoxFormatAuto.Value);
    }
}

void WinMain::EditFieldBaseOrg_LostFocus(TextField& champ) {
    if (app.initProg && FocusBase) {
        FocusBase = false;
        if (!IsErrorText(champ.Text())) {
            champ.Text = FormatType(champ.Text(), PopupMenuBaseOrg.ListIndex + 2, CheckBoxFormatAuto.Value);
        }
    }
}

void WinMain::RememberSource(TextField& field, bool hasFocus, bool isDecimal, std::string& lastText) {
    if (app.initProg && hasFocus && field.Text() != lastText) {
        DrapTimerNbre = isDecimal;
        TimerTempo.Mode = 1;
    }
    lastText = field.Text();
}

void WinMain::EditFieldNbre_TextChange(TextField& champ) {
    RememberSource(champ, FocusNbre, true, lastTextNbre_);
}

void WinMain::EditFieldBaseOrg_TextChange(TextField& champ) {
    RememberSource(champ, FocusBase, false, lastTextBaseOrg_);
}

bool WinMain::EditFieldNbre_KeyDown(TextField&, const std::string& key) {
    StopOnEscape(key);
    return false;
}

bool WinMain::EditFieldBaseOrg_KeyDown(TextField&, const std::string& key) {
    StopOnEscape(key);
    return false;
}

void WinMain::TimerTempo_Action(Timer& timer) {
    if (app.DrapOkQuit || TimerQuit.Mode != 0) {
        recalculationDue_ = true; // for the case that the quit is refused
        return;
    }
    // A dialog counts too: a calculation that began under a file chooser would race the load behind it.
    if (CalculEnCours || fncts.DrapDiagBox) {
        timer.Mode = 1;
        return;
    }
    ChangeNbre();
}

void WinMain::ChangeNbre() {
    ConvNbreBaseD();
    const std::string decimal = WithoutBlanks(EditFieldNbre.Text());
    if (!decimal.empty() && !IsNumeric(decimal)) {
        return;
    }
    DecompPremDeb(false);
    ConvNbreLettresD();
}

std::string WinMain::FormatNbre(std::string_view nombre, bool formatAuto) {
    return tessarolyne::FormatNbre(nombre, formatAuto);
}

std::string WinMain::FormatType(std::string_view nombre, int base, bool formatAuto) {
    return tessarolyne::FormatType(nombre, base, formatAuto);
}

void WinMain::PopupMenuBaseOrg_Change(PopupMenu&) {
    if (app.initProg) {
        ConvNbreBaseD();
    }
}

void WinMain::PopupMenuBaseDest_Change(PopupMenu&) {
    if (app.initProg) {
        ConvNbreBaseD();
    }
}

void WinMain::RadioButton09AZ_Action(RadioButton&, int) {
    if (app.initProg) {
        ConvNbreBaseD();
    }
}

} // namespace tessarolyne

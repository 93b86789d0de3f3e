// From a keystroke in one of the two number fields to the recalculation of everything.

#include "conversion/WinMain.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "ui/Localisation.h"
#include "ui/NumberFormat.h"

namespace tessarolyne {

namespace {

constexpr int waitToBeSeen = 500; // milliseconds

} // namespace

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
            champ.Text = FormatType(SourceDigits(), PopupMenuBaseOrg.ListIndex + 2, CheckBoxFormatAuto.Value);
        }
    }
}

// What the program writes is no input, whichever field has the focus.
void WinMain::TakeAsSource(bool isDecimal, ChangedBy who) {
    if (app.initProg && who == ChangedBy::User) {
        DrapTimerNbre = isDecimal;
        TimerTempo.Mode = 1;
        AnnounceResultAfterPause();
    }
}

void WinMain::EditFieldNbre_TextChange(TextField&, ChangedBy who) {
    TakeAsSource(true, who);
}

void WinMain::EditFieldBaseOrg_TextChange(TextField&, ChangedBy who) {
    TakeAsSource(false, who);
}

bool WinMain::EditFieldNbre_KeyDown(TextField& champ, const std::string& key) {
    calculation.StopOnEscape(key);
    return RecallNumber(champ, key);
}

bool WinMain::EditFieldBaseOrg_KeyDown(TextField& champ, const std::string& key) {
    calculation.StopOnEscape(key);
    return RecallNumber(champ, key);
}

void WinMain::TimerTempo_Action(Timer& timer) {
    if (app.DrapOkQuit || TimerQuit.Mode != 0) {
        recalculationDue_ = true; // for the case that the quit is refused
        return;
    }
    // A dialog counts too: a calculation that began under a file chooser would race the load behind it.
    if (calculation.CalculEnCours() || app.HasModalStep()) {
        timer.Mode = 1;
        if (calculation.CalculEnCours() && ++turnsWaited_ * timer.Period >= waitToBeSeen &&
            !StaticTextEnAttente.Visible) {
            StaticTextEnAttente.Visible = true;
            fncts.Announce(StaticTextEnAttente.Text);
        }
        return;
    }
    ChangeNbre();
}

void WinMain::ChangeNbre() {
    turnsWaited_ = 0;
    StaticTextEnAttente.Visible = false;
    ConvNbreBaseD();
    const std::string decimal = WithoutBlanks(EditFieldNbre.Text());
    if (!decimal.empty() && !IsNumeric(decimal)) {
        return;
    }
    decomposition.DecompPremDeb(false);
    ConvNbreLettresD();
}

std::string WinMain::FormatNbre(std::string_view nombre, bool formatAuto) {
    return tessarolyne::FormatNbre(nombre, formatAuto);
}

std::string WinMain::FormatType(std::string_view nombre, int base, bool formatAuto) {
    return tessarolyne::FormatType(nombre, base, formatAuto);
}

// The digits in EditFieldBaseOrg may be another number now, of which the factors and the words don't speak
// before the next key.
void WinMain::ConvertAgain() {
    if (!app.initProg) {
        return;
    }
    ConvNbreBaseD();
    factors_.Compare();
    words_.Compare();
}

void WinMain::PopupMenuBaseOrg_Change(PopupMenu&) {
    ConvertAgain();
}

void WinMain::PopupMenuBaseDest_Change(PopupMenu&) {
    ConvertAgain();
}

void WinMain::RadioButton09AZ_Action(RadioButton&, int) {
    ConvertAgain();
}

} // namespace tessarolyne

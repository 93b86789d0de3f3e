// The amount in words: what the controls say goes to the spelling, and the text into TxtAreaLettres.

#include "app/Program.h"
#include "conversion/WinMain.h"
#include "platform/Desktop.h"
#include "platform/Numbers.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "ui/Localisation.h"
#include "words/AmountInWords.h"

namespace tessarolyne {

void WinMain::ConvNbreLettresD() {
    const std::string decimal = WithoutBlanks(EditFieldNbre.Text());
    if (decimal.empty()) {
        words_.Write("");
        return;
    }
    if (!IsNumeric(decimal)) {
        words_.Write(Localisation::Txt_ErrNbre());
        return;
    }
    const double value = CDbl(decimal);
    if (!(value >= 0)) {
        words_.Write(
            Localisation::Txt_ErrNbre() + std::string(endOfLine) + Localisation::Txt_EntrerUnNbrePositif());
        return;
    }
    const std::string code = PopupMenuLg.Text();
    const auto language = WordsLanguageOf(code);
    if (!language) {
        fncts.ReportFault("ConvNbreLettresD, PopupMenuLg.Text = '" + code + "'");
        return;
    }
    AmountSettings settings;
    settings.language = *language;
    settings.singularCurrency = EditFieldMonnaie.Text();
    settings.pluralCurrency = EditFieldMonnaies.Text();
    settings.singularCents = EditFieldCentime.Text();
    settings.pluralCents = EditFieldCentimes.Text();
    settings.hyphens = CheckBoxTrUnion.Value;
    settings.capital = CheckBoxMajusc.Value;
    settings.tooLargeText = Localisation::Txt_EntrerNbreAuDessousDe();
    settings.report = [this](std::string_view place) { fncts.ReportFault(std::string(place)); };
    words_.Write(AmountInWords(value, settings));
}

void WinMain::RecomputeWords() {
    if (app.initProg) {
        ConvNbreLettresD();
        AnnounceResultAfterPause();
    }
}

void WinMain::EditFieldMonnaies_TextChange(TextField&) {
    RecomputeWords();
}

void WinMain::EditFieldMonnaie_TextChange(TextField&) {
    RecomputeWords();
}

void WinMain::EditFieldCentimes_TextChange(TextField&) {
    RecomputeWords();
}

void WinMain::EditFieldCentime_TextChange(TextField&) {
    RecomputeWords();
}

void WinMain::CheckBoxMajusc_Action(CheckBox&) {
    RecomputeWords();
}

void WinMain::CheckBoxTrUnion_Action(CheckBox&) {
    RecomputeWords();
}

void WinMain::PopupMenuLg_Change(PopupMenu&) {
    RecomputeWords();
}

void WinMain::PushButtonPressPapLettr_Action(PushButton&) {
    if (!program.services.desktop.OptionKeyIsDown()) {
        fncts.CopyToClipboard(TxtAreaLettres.Text);
    } else if (app.initProg) {
        ResetCurrencies();
    }
}

void WinMain::ResetCurrencies() {
    fncts.Beep();
    const int answer = fncts.MyDialogBox(Localisation::Txt_ResetMonnaiDef(), "", Localisation::Btn_Ok(),
        Localisation::Btn_Annuler(), "", 0, nullptr);
    if (answer == 1) {
        EditFieldMonnaie.Text = Localisation::Txt_Monnaie();
        EditFieldCentime.Text = Localisation::Txt_Centime();
        EditFieldMonnaies.Text = Localisation::Txt_Monnaies();
        EditFieldCentimes.Text = Localisation::Txt_Centimes();
    }
}

} // namespace tessarolyne

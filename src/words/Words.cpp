#include "words/Words.h"

#include "platform/Numbers.h"
#include "platform/Text.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"
#include "ui/NumberField.h"
#include "ui/Program.h"
#include "words/NumbersInWords.h"

namespace tessarolyne {

Words::Words(const WordsControls& controls, NumberOutput& output, App& app, Fncts& fncts)
    : WordsControls(controls), output_(output), app_(app), fncts_(fncts) {
    for (TextField* field : {&EditFieldMonnaies, &EditFieldMonnaie, &EditFieldCentimes, &EditFieldCentime}) {
        field->TextChange = [this](ChangedBy) { Recompute(); };
    }
    for (CheckBox* box : {&CheckBoxMajusc, &CheckBoxTrUnion}) {
        box->Action = [this] { Recompute(); };
    }
    PopupMenuLg.Change = [this] { Recompute(); };
}

void Words::ConvNbreLettresD() {
    const std::string decimal = WithoutBlanks(EditFieldNbre.Text());
    if (!IsNumeric(decimal)) {
        output_.Write(decimal.empty() ? "" : Localisation::Txt_ErrNbre());
        return;
    }
    const double value = CDbl(decimal);
    if (!(value >= 0)) {
        output_.Write(
            Localisation::Txt_ErrNbre() + std::string(endOfLine) + Localisation::Txt_EntrerUnNbrePositif());
        return;
    }
    AmountSettings settings;
    settings.language = PopupMenuLg.Text();
    settings.singularCurrency = EditFieldMonnaie.Text();
    settings.pluralCurrency = EditFieldMonnaies.Text();
    settings.singularCents = EditFieldCentime.Text();
    settings.pluralCents = EditFieldCentimes.Text();
    settings.hyphens = CheckBoxTrUnion.Value;
    settings.capital = CheckBoxMajusc.Value;
    settings.tooLargeText = Localisation::Txt_EntrerNbreAuDessousDe();
    settings.report = [this](std::string_view place) { fncts_.ReportFault(std::string(place)); };
    const std::string& code = settings.language;
    if (code != "en" && code != "fr" && code != "ch be") {
        fncts_.ReportFault("ConvNbreLettresD, PopupMenuLg.Text = '" + code + "'");
        return;
    }
    output_.Write(AmountInWords(value, settings));
}

void Words::Recompute() {
    if (app_.initProg) {
        ConvNbreLettresD();
        Recomputed();
    }
}

void Words::ResetCurrencies() {
    fncts_.Beep();
    const int answer = fncts_.MyDialogBox(Localisation::Txt_ResetMonnaiDef(), "", Localisation::Btn_Ok(),
        Localisation::Btn_Annuler(), "", 0, nullptr);
    if (answer == 1) {
        EditFieldMonnaie.Text = Localisation::Txt_Monnaie();
        EditFieldCentime.Text = Localisation::Txt_Centime();
        EditFieldMonnaies.Text = Localisation::Txt_Monnaies();
        EditFieldCentimes.Text = Localisation::Txt_Centimes();
    }
}

} // namespace tessarolyne

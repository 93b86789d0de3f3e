// The number in two bases: which field is the source, what the others show, and the check by a second route.

#include "conversion/BaseConversion.h"
#include "conversion/BaseDigits.h"
#include "conversion/NumberEntry.h"
#include "platform/Buttons.h"
#include "platform/Numbers.h"
#include "platform/PopupMenu.h"
#include "platform/Text.h"
#include "platform/TextControls.h"
#include "ui/App.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"
#include "ui/NumberFormat.h"
#include "ui/NumberOutput.h"

namespace tessarolyne {

std::string NumberEntry::ConvNbreBase(
    std::string_view nombre, int baseOrg, int baseDest, std::string_view alphabet) {
    return tessarolyne::ConvNbreBase(
        nombre, baseOrg, baseDest, alphabet, {Localisation::Txt_ErrNbre(), Localisation::Txt_ErrBase()});
}

std::string_view NumberEntry::Alphabet() const {
    return RadioButton09AZ[0].Value() ? alphabet09AZ : alphabetAZ09;
}

int NumberEntry::BaseOrg() const {
    return PopupMenuBaseOrg.ListIndex + 2;
}

std::string NumberEntry::SourceDigits() const {
    return BareDigits(EditFieldBaseOrg.Text(), BaseOrg(), Alphabet());
}

// The digits in EditFieldBaseOrg may be another number now, of which the factors and the words don't speak
// before the next key.
void NumberEntry::ConvertAgain() {
    if (!app_.initProg) {
        return;
    }
    ConvNbreBaseD();
    outputs_.factors.Compare();
    outputs_.words.Compare();
}

void NumberEntry::ConvNbreBaseD() {
    const int baseOrg = BaseOrg();
    const std::string_view alphabet = Alphabet();
    std::string decimal;
    std::string source;
    bool withinLimit = true;
    if (drapTimerNbre_) {
        withinLimit = ConvertDecimal(decimal, source, baseOrg, alphabet);
    } else {
        ConvertSourceBase(decimal, source, baseOrg, alphabet);
    }
    if (decimal.empty()) {
        EditFieldBaseDest.Text = "";
    } else if (withinLimit && IsNumeric(decimal)) {
        ShowDestination(decimal, source, baseOrg, alphabet);
    } else {
        const std::string error = Localisation::Txt_ErrNbre();
        if (drapTimerNbre_) {
            EditFieldBaseOrg.Text = error;
        }
        EditFieldBaseDest.Text = error;
        outputs_.factors.Write(error);
        outputs_.words.Write(error);
    }
    for (TextField* field : {&EditFieldBaseOrg, &EditFieldBaseDest}) {
        field->Remark = OnlyCentsAreWrong(EditFieldNbre);
    }
}

// From EditFieldNbre to EditFieldBaseOrg. False if the number is above the limit.
bool NumberEntry::ConvertDecimal(
    std::string& decimal, std::string& source, int baseOrg, std::string_view alphabet) {
    decimal = WithoutBlanks(EditFieldNbre.Text());
    if (decimal.empty()) {
        EditFieldBaseOrg.Text = "";
        return true;
    }
    const double value = CDbl(decimal);
    if (value > static_cast<double>(NbreMax)) {
        fncts_.Beep();
        return false;
    }
    const bool whole = value == Round(value);
    source = whole ? ConvNbreBase(decimal, 10, baseOrg, alphabet) : Localisation::Txt_ErrNbre();
    EditFieldBaseOrg.Text =
        IsErrorText(source) ? source : FormatType(source, baseOrg, CheckBoxFormatAuto.Value);
    return true;
}

// From EditFieldBaseOrg to EditFieldNbre, which also shows what is wrong.
void NumberEntry::ConvertSourceBase(
    std::string& decimal, std::string& source, int baseOrg, std::string_view alphabet) {
    source = SourceDigits();
    if (!source.empty()) {
        decimal = ConvNbreBase(source, baseOrg, 10, alphabet);
    }
    if (CDbl(decimal) > static_cast<double>(NbreMax)) {
        fncts_.Beep();
        decimal = Localisation::Txt_PlusGdNbrePossible() + FormatWhole(NbreMax, CheckBoxFormatAuto.Value);
    } else if (IsErrorText(decimal)) {
        fncts_.Beep();
    }
    EditFieldNbre.Text = FormatNbre(decimal, CheckBoxFormatAuto.Value);
}

void NumberEntry::ShowDestination(
    const std::string& decimal, const std::string& source, int baseOrg, std::string_view alphabet) {
    if (IsErrorText(source)) {
        EditFieldBaseDest.Text = Localisation::Txt_ErrNbre();
        return;
    }
    const int baseDest = PopupMenuBaseDest.ListIndex + 2;
    const std::string dest = ConvNbreBase(source, baseOrg, baseDest, alphabet);
    if (IsErrorText(dest)) {
        EditFieldBaseDest.Text = dest;
        return;
    }
    EditFieldBaseDest.Text = FormatType(dest, baseDest, CheckBoxFormatAuto.Value);
    const std::string checked = ConvNbreBase(decimal, 10, baseDest, alphabet);
    if (dest != checked) {
        ReportConversionMismatch(checked, baseDest, dest, baseOrg);
    }
}

// Both routes are exact within the limit: this is a net under the arithmetic. The same disagreement is
// reported once, until another one comes between.
void NumberEntry::ReportConversionMismatch(
    const std::string& fromDecimal, int baseDest, const std::string& fromSource, int baseOrg) {
    const std::string key = fromSource + " ≠ " + fromDecimal;
    if (key == memErrConv_) {
        return;
    }
    memErrConv_ = key;
    fncts_.Beep();
    const auto piece = [this](int n) { return fncts_.FracTexte(Localisation::Txt_ErrTranscBase(), n); };
    const std::string message = piece(1) + Localisation::Txt_EnBase() + Str(baseDest) + piece(2) +
                                fromDecimal + piece(3) + Str(baseOrg) + piece(4) + fromSource + piece(5);
    fncts_.MyDialogBox(
        message, Localisation::Txt_MerciContactAuteur(), Localisation::Btn_Ok(), "", "", 1, nullptr);
}

} // namespace tessarolyne

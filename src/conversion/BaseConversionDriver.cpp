// The number in two bases: which field is the source, what the others show, and the check by a second route.

#include "conversion/BaseConversion.h"
#include "conversion/NumberEntry.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"
#include "ui/NumberField.h"
#include "ui/Program.h"
#include "ui/WrittenNumber.h"

namespace tessarolyne {

std::string_view NumberEntry::Alphabet() const {
    return RadioButton09AZ[0].Value() ? alphabet09AZ : alphabetAZ09;
}

int NumberEntry::BaseOrg() const {
    return PopupMenuBaseOrg.ListIndex + smallestBase;
}

int NumberEntry::BaseDest() const {
    return PopupMenuBaseDest.ListIndex + smallestBase;
}

std::string NumberEntry::SourceDigits() const {
    return BareDigits(EditFieldBaseOrg.Text(), BaseOrg(), Alphabet());
}

// The digits in EditFieldBaseOrg may be another number now, of which the factors and the words don't speak
// before the next key.
void NumberEntry::ConvertAgain() {
    if (app_.initProg) {
        ConvNbreBaseD();
        factors.Compare();
        words.Compare();
    }
}

void NumberEntry::ConvNbreBaseD() {
    std::string decimal;
    std::string source;
    const bool isNumber =
        drapTimerNbre_ ? ConvertDecimal(decimal, source) : ConvertSourceBase(decimal, source);
    if (decimal.empty()) {
        EditFieldBaseDest.Text = "";
    } else if (isNumber) {
        ShowDestination(decimal, source);
    } else {
        const std::string error = Localisation::Txt_ErrNbre();
        if (drapTimerNbre_) {
            EditFieldBaseOrg.Text = error;
        }
        EditFieldBaseDest.Text = error;
        factors.Write(error);
        words.Write(error);
    }
    for (TextField* field : {&EditFieldBaseOrg, &EditFieldBaseDest}) {
        field->Remark = OnlyCentsAreWrong(EditFieldNbre);
    }
}

void NumberEntry::ShowDigits(TextField& champ, const std::string& digits, int base) {
    champ.Text = IsErrorText(digits) ? digits : FormatType(digits, base, CheckBoxFormatAuto.Value);
}

// From EditFieldNbre to EditFieldBaseOrg. False if that is no number, or one above the limit.
bool NumberEntry::ConvertDecimal(std::string& decimal, std::string& source) {
    decimal = WithoutBlanks(EditFieldNbre.Text());
    const double value = CDbl(decimal);
    if (value > static_cast<double>(NbreMax)) {
        fncts_.Beep();
        return false;
    }
    if (!decimal.empty()) {
        source = value == Round(value) ? ConvNbreBase(decimal, 10, BaseOrg(), Alphabet())
                                       : Localisation::Txt_ErrNbre();
    }
    ShowDigits(EditFieldBaseOrg, source, BaseOrg());
    return IsNumeric(decimal);
}

// From EditFieldBaseOrg to EditFieldNbre, which also shows what is wrong.
bool NumberEntry::ConvertSourceBase(std::string& decimal, std::string& source) {
    source = SourceDigits();
    if (!source.empty()) {
        decimal = ConvNbreBase(source, BaseOrg(), 10, Alphabet());
    }
    if (CDbl(decimal) > static_cast<double>(NbreMax)) {
        decimal = Localisation::Txt_PlusGdNbrePossible() + FormatWhole(NbreMax, CheckBoxFormatAuto.Value);
    }
    EditFieldNbre.Text = FormatNbre(decimal, CheckBoxFormatAuto.Value);
    const bool isNumber = IsNumeric(decimal);
    if (!isNumber && !decimal.empty()) {
        fncts_.Beep();
    }
    return isNumber;
}

void NumberEntry::ShowDestination(const std::string& decimal, const std::string& source) {
    if (IsErrorText(source)) {
        EditFieldBaseDest.Text = Localisation::Txt_ErrNbre();
        return;
    }
    const std::string dest = ConvNbreBase(source, BaseOrg(), BaseDest(), Alphabet());
    ShowDigits(EditFieldBaseDest, dest, BaseDest());
    const std::string checked = ConvNbreBase(decimal, 10, BaseDest(), Alphabet());
    if (!IsErrorText(dest) && dest != checked) {
        ReportConversionMismatch(checked, BaseDest(), dest, BaseOrg());
    }
}

// Both routes are exact within the limit: this is a net under the arithmetic. The same disagreement is
// reported once, until another one comes between.
void NumberEntry::ReportConversionMismatch(
    const std::string& fromDecimal, int baseDest, const std::string& fromSource, int baseOrg) {
    fncts_.WarnOfMismatch(memErrConv_, fromSource + " ≠ " + fromDecimal,
        fncts_.Filled(Localisation::Txt_ErrTranscBase(),
            {Localisation::Txt_EnBase() + Str(baseDest), fromDecimal, Str(baseOrg), fromSource}));
}

} // namespace tessarolyne

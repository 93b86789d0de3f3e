#include "ui/NumberField.h"

#include "platform/Numbers.h"
#include "platform/Text.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"

#include <algorithm>

namespace tessarolyne {

namespace {

// With the factors' "x", but without any sign that errors and hints have.
bool StandsInNumber(char c) {
    return IsDigit(c) || IsLetter(c) || c == '.';
}

} // namespace

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
    case NumberTyping::Refusal::TooManyDigits:
        return fncts_.Filled(Localisation::Txt_RefusChiffres(), {Str(mask.WholeDigits())});
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

std::string NumberOutput::NumberShown() const {
    return FormatNbre(field_.Text(), false);
}

void NumberOutput::Write(const std::string& text, const std::string& remark) {
    area_.Text = text;
    remark_ = remark;
    number_ = NumberShown();
    area_.Remark = remark_;
}

void NumberOutput::Compare() {
    area_.Remark = number_ == NumberShown() ? remark_ : Localisation::Txt_NbrePrecedent();
}

std::string OnlyCentsAreWrong(const TextField& number) {
    const std::string decimal = WithoutBlanks(number.Text());
    const double value = IsNumeric(decimal) ? CDbl(decimal) : 0;
    const bool hasCents = value > 0 && value <= static_cast<double>(NbreMax) && value != Round(value);
    return hasCents ? Localisation::Txt_RefusEntier() : "";
}

void OfferCopies(TextControl& source, Fncts& fncts, FurtherCopies further) {
    source.ContextCommands = [&source, &fncts, further = std::move(further)] {
        std::vector<TextControl::Command> commands;
        const std::string bare = WithoutBlanks(source.Text());
        if (!bare.empty() && std::all_of(bare.begin(), bare.end(), StandsInNumber)) {
            commands.push_back(CopyCommand(fncts, Localisation::Txt_CopierSansEsp(), bare));
            if (further) {
                further(bare, commands);
            }
        }
        return commands;
    };
}

TextControl::Command CopyCommand(Fncts& fncts, const std::string& caption, const std::string& text) {
    return {caption, [&fncts, text] { fncts.CopyToClipboard(text); }};
}

} // namespace tessarolyne

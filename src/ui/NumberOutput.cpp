#include "ui/NumberOutput.h"

#include "platform/Numbers.h"
#include "platform/Text.h"
#include "platform/TextControls.h"
#include "ui/Localisation.h"
#include "ui/NumberFormat.h"

namespace tessarolyne {

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

} // namespace tessarolyne

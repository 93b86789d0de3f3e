#include "platform/TextField.h"

#include "platform/Numbers.h"
#include "platform/Text.h"

namespace tessarolyne {

std::string TextField::DisplayText() const {
    if (Format().empty() || HasFocus() || !IsNumeric(Text())) {
        return Text();
    }
    return LTrim(tessarolyne::Format(CDbl(Text()), Format()));
}

std::string TextField::Accepted(int start, int removed, const std::string& inserted) const {
    return tessarolyne::Mask(Mask()).Filter(
        Text(), static_cast<std::size_t>(start), static_cast<std::size_t>(removed), inserted);
}

bool TextField::GivesWay() const {
    return !tessarolyne::Mask(Mask()).Holds(Text());
}

} // namespace tessarolyne

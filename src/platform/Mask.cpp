#include "platform/Mask.h"

#include "platform/Text.h"

#include <algorithm>
#include <cstddef>

namespace tessarolyne {

Mask::Mask(std::string_view mask) {
    const std::size_t point = std::min(mask.find('.'), mask.size());
    point_ = point < mask.size();
    wholeDigits_ = point;
    decimals_ = point_ ? mask.size() - point - 1 : 0;
    const auto nines = static_cast<std::size_t>(std::count(mask.begin(), mask.end(), '9'));
    filters_ = nines > 0 && nines == wholeDigits_ + decimals_;
}

bool Mask::Fits(std::string_view text) const {
    const std::size_t point = std::min(text.find('.'), text.size());
    const std::size_t decimals = point < text.size() ? text.size() - point - 1 : 0;
    if (point > wholeDigits_ || decimals > decimals_ || (point < text.size() && !point_)) {
        return false;
    }
    return std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(point), IsDigit) &&
           std::all_of(text.end() - static_cast<std::ptrdiff_t>(decimals), text.end(), IsDigit);
}

bool Mask::Holds(std::string_view text) const {
    return !filters_ || Fits(WithoutBlanks(text));
}

} // namespace tessarolyne

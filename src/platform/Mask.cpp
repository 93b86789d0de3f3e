#include "platform/Mask.h"

#include "platform/Ascii.h"
#include "platform/Text.h"
#include "platform/Utf8.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace tessarolyne {

namespace {

std::int64_t Position(std::size_t count) {
    constexpr auto most = static_cast<std::size_t>(std::numeric_limits<std::int64_t>::max() - 1);
    return static_cast<std::int64_t>(std::min(count, most));
}

} // namespace

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

std::string Mask::Filter(
    std::string_view before, std::size_t start, std::size_t removed, std::string_view inserted) const {
    if (!filters_) {
        return std::string(inserted);
    }
    const std::string left = Left(before, Position(start));
    const std::string right = Mid(before.substr(left.size()), Position(removed) + 1);
    return FittingPart(inserted, WithoutBlanks(left), WithoutBlanks(right));
}

bool Mask::Holds(std::string_view text) const {
    return !filters_ || Fits(WithoutBlanks(text));
}

std::string Mask::FittingPart(
    std::string_view inserted, const std::string& left, const std::string& right) const {
    std::string whole = left + right;
    std::size_t end = left.size();
    for (std::size_t at = 0; at < inserted.size();) {
        const std::string_view character = inserted.substr(at, CharacterAt(inserted, at).size);
        whole.insert(end, character);
        if (Fits(whole)) {
            end += character.size();
        } else {
            whole.erase(end, character.size());
        }
        at += character.size();
    }
    return whole.substr(left.size(), end - left.size());
}

} // namespace tessarolyne

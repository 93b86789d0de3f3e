#include "platform/System.h"

#include <utility>

namespace tessarolyne {

namespace {

constexpr std::string_view fallbackMark = "‡";

System::FindTranslation findTranslation;

} // namespace

namespace System {

void UseTranslations(FindTranslation find) {
    findTranslation = std::move(find);
}

std::string GetLocalizedString(std::string_view key, std::string_view fallback, std::string_view language) {
    if (const auto text = findTranslation ? findTranslation(key, language) : std::nullopt) {
        return *text;
    }
    if (fallback.starts_with(fallbackMark)) {
        fallback.remove_prefix(fallbackMark.size());
    }
    return std::string(fallback);
}

} // namespace System

} // namespace tessarolyne

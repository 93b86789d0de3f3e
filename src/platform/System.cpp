#include "platform/System.h"

namespace tessarolyne {

namespace {

constexpr std::string_view fallbackMark = "‡";

const Translations* current = nullptr;

} // namespace

namespace System {

void UseTranslations(const Translations* translations) {
    current = translations;
}

std::string GetLocalizedString(std::string_view key, std::string_view fallback, std::string_view language) {
    if (current != nullptr) {
        if (auto text = current->Find(key, language)) {
            return *text;
        }
    }
    if (fallback.starts_with(fallbackMark)) {
        fallback.remove_prefix(fallbackMark.size());
    }
    return std::string(fallback);
}

} // namespace System

} // namespace tessarolyne

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tessarolyne {

namespace System {

// Finds the translation that is filed under a key, if there is any. An empty `language` means the language in
// which the program runs.
using FindTranslation =
    std::function<std::optional<std::string>(std::string_view key, std::string_view language)>;

// Takes what finds the process's translations, or null for none.
void UseTranslations(FindTranslation find);

// The translation of `key`, else `fallback` without its mark "‡".
std::string GetLocalizedString(std::string_view key, std::string_view fallback, std::string_view language);

} // namespace System

} // namespace tessarolyne

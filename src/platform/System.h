#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessarolyne {

// Where translations are filed: by key and language code, outside the program's code.
class Translations {
public:
    virtual ~Translations() = default;

    // The text filed under `key`; nothing where there is none. An empty `language` means the language in
    // which the program runs.
    virtual std::optional<std::string> Find(std::string_view key, std::string_view language) const = 0;
};

namespace System {

// Takes the process's translations, or none; the caller keeps them alive as long as texts are looked up.
void UseTranslations(const Translations* translations);

// The translation of `key`, else `fallback` without its mark "‡".
std::string GetLocalizedString(std::string_view key, std::string_view fallback, std::string_view language);

} // namespace System

} // namespace tessarolyne

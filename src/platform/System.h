#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

// Which catalogues of translations a user reads, the most particular first; what one lacks is looked up in
// the next, and in the end in the texts that are built into the program. `wanted` are the desktop's
// languages in the order of preference, as tags of any spelling ("fr_CH.UTF-8", "en-Latn-GB", "C");
// `available` the catalogues' names; `builtIn` the language of the built-in texts. The first wanted language
// that there is decides, a region falling back on its language; without any the chain is empty, and so it is
// for `builtIn`.
std::vector<std::string> CatalogueChain(const std::vector<std::string>& wanted,
    const std::vector<std::string>& available, std::string_view builtIn);

} // namespace tessarolyne

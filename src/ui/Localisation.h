#pragma once

#include <string>
#include <string_view>

// The string table: one function for each text that the user reads. Each looks its text up afresh, filed
// under "Localisation." and its name; without a translation it gives the French default. `language` is a
// language code; the empty string means the language in which the program runs.
namespace tessarolyne::Localisation {

// Stands in a text where a value goes.
inline constexpr std::string_view placeForValue = "¿%";

#define TEXT(name, text) std::string name(std::string_view language = {});
#include "ui/Localisation.def"
#undef TEXT

} // namespace tessarolyne::Localisation

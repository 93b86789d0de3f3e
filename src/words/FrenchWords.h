#pragma once

#include <string>
#include <string_view>

// A whole number in French words, in two variants: of France, and of Switzerland and Belgium ("septante",
// "huitante", "nonante"; `chBe` is true). Nothing here knows of cents or of the options of the main window.
namespace tessarolyne {

// The words of one group of one to three digits, the first of them not 0, with its scale word. `rang` counts
// groups from the right: 1 units, 2 thousands, 3 millions, 4 thousands of millions. No blank at the end.
std::string TrouvNbreLettr(std::string_view tranche, int rang, bool chBe);

// The words of `nombre` (decimal digits, no sign, no leading zeros), ended by one blank; after a whole number
// of millions by "d'" before a `pluralCurrency` that begins with a vowel or "€", else by "de ". More than 12
// digits give `tooLargeText`, without a blank.
std::string ConvNbreLettresFr(
    std::string_view nombre, bool chBe, std::string_view pluralCurrency, std::string_view tooLargeText);

} // namespace tessarolyne

#pragma once

#include <functional>
#include <string>
#include <string_view>

// Whole numbers in words: `nombre` is decimal digits without sign and leading zeros. Where it has more digits
// than the language goes to, `tooLargeText` stands for the words.
namespace tessarolyne {

// The words of one group of one to three digits, the first of them not 0, with its scale word; with `chBe` of
// Switzerland and Belgium ("septante", "huitante", "nonante"), else of France. `rang` counts groups from the
// right: 1 units, 2 thousands, 3 millions, 4 thousands of millions. No blank at the end.
std::string TrouvNbreLettr(std::string_view tranche, int rang, bool chBe);

// Up to 12 digits in French, ended by one blank; after a whole number of millions by "d'" before a
// `pluralCurrency` that begins with a vowel or "€", else by "de ".
std::string ConvNbreLettresFr(
    std::string_view nombre, bool chBe, std::string_view pluralCurrency, std::string_view tooLargeText);

// Takes the report of an error of the program, for the user to see.
using ErrorReport = std::function<void(std::string_view)>;

// The words of one group of one to three digits, without a scale word and without a blank at the end; empty
// for "000". `position` is the group's place from 0 at the left, `dernier` that of the last group, which
// takes "and" when it has no hundreds and isn't alone. An error text, and a report, for a value above 999,
// which no group of three digits has.
std::string Century(std::string_view tranche, int dernier, int position, const ErrorReport& report = {});

// Up to 9 digits in English, with "and" and without hyphens, ended by one blank.
std::string ConvNbreLettresEn(
    std::string_view nombre, std::string_view tooLargeText, const ErrorReport& report = {});

} // namespace tessarolyne

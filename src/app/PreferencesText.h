#pragma once

#include "platform/Date.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessarolyne {

// The keys of the preferences file, in the order of the file. They are the file's own and don't follow the
// language of the interface.
namespace PreferencesKeys {

inline constexpr std::string_view dateLaunch = "Date Launch";
inline constexpr std::string_view dejaDonne = "Deja Envoye Don 03";
inline constexpr std::string_view autoCheckUpdt = "Auto Check Update";
inline constexpr std::string_view winMain = "Fenetre WinMain";
inline constexpr std::string_view majuscule = "Majuscule";
inline constexpr std::string_view winNBP = "Fenetre WinNbres_1ers";
inline constexpr std::string_view listeVisible = "Liste Nb1ers Visible";
inline constexpr std::string_view fichNbPrems = "Fichier Nbres 1ers";
inline constexpr std::string_view nbreNbPparLigne = "Nbre Nb Prem par Lignes";
inline constexpr std::string_view baseOrg = "Base Org";
inline constexpr std::string_view baseDest = "Base Dest";
inline constexpr std::string_view radio09AZ = "Nbre Base 09AZ";
inline constexpr std::string_view formatAuto = "Format Auto";
inline constexpr std::string_view trUnion = "Trait d'union";
inline constexpr std::string_view langue = "Langue Nombre Lettre";
inline constexpr std::string_view monnaie = "Monnaie";
inline constexpr std::string_view centime = "Centime";
inline constexpr std::string_view monnaies = "Monnaies";
inline constexpr std::string_view centimes = "Centimes";
// Stands in the file only where it is switched off, so that all others keep their 19 lines.
inline constexpr std::string_view annonces = "Annonces";

// Between a key and its value.
inline constexpr std::string_view separator = " :@: ";

} // namespace PreferencesKeys

// What the preferences file keeps, as plain values. Not for what the values mean: the windows test positions,
// languages and paths. The initial values are those of a first launch; the date and the texts are the
// program's to set before reading.
struct Preferences {
    Date dateLaunch;
    bool dejaDonne = false;
    bool autoCheckUpdt = false;
    // Left, top, width, height. The last two are written for other programs and not read back.
    std::array<int, 4> winMain{-1, -1, 0, 0};
    bool majuscule = false;
    std::array<std::int16_t, 4> winNBP{-1, -1, 500, 540};
    bool listeVisible = false;
    std::string fichNbPrems; // a colon path, or empty
    std::int16_t nbreNbPparLigne = 10;
    int baseOrg = 14; // list indexes
    int baseDest = 0;
    int radio09AZ = 0;
    bool formatAuto = true;
    bool trUnion = false;
    std::string langue;
    std::string monnaie;
    std::string centime;
    std::string monnaies;
    std::string centimes;
    bool annonces = true;

    bool operator==(const Preferences&) const = default;
};

// How many rows and buttons the controls have into which indexes are read.
struct PreferencesLimits {
    int baseRows = 35;
    int radioButtons = 2;
};

// The longest text that is kept, in bytes; no path and no word comes near it.
inline constexpr std::size_t longestPreferencesValue = std::size_t{64} * 1024;

// The whole file: 19 lines, or 20 without announcements, each with its line ending. A text with a line end in
// it is written as empty, since a file's name may hold one and what stands behind it would be read as a
// setting; so is one that is too long.
std::string PreferencesText(const Preferences& preferences);

// Key and value of a line, parted at the first separator; the key is empty if there is none.
std::pair<std::string_view, std::string_view> SplitPreferencesLine(std::string_view line);

// Puts what one line says into `preferences`; a line with an unknown key says nothing. False for a date that
// is none and for an index beyond its limit, with `preferences` unchanged. Keys and "True" are taken in any
// case. Numbers are those at the start of their text, truncated, 0 if there is none, held within their type.
bool ApplyPreferencesLine(std::string_view line, const PreferencesLimits& limits, Preferences& preferences);

// Puts line after line into `preferences` up to the first that fails; false if one did.
bool ReadPreferences(
    const std::vector<std::string>& lines, const PreferencesLimits& limits, Preferences& preferences);

} // namespace tessarolyne

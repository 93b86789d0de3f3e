#pragma once

#include "platform/FolderItem.h"
#include "platform/Services.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessarolyne {

inline constexpr std::string_view preferencesFileName = "Tessarolyne Prefs.txt";
// A file that couldn't be read is kept under this name when another takes its place.
inline constexpr std::string_view badPreferencesFileName = "Tessarolyne Prefs.txt.bad";
// The longest text that is kept, in bytes; no path and no word comes near it.
inline constexpr std::size_t longestPreferencesValue = std::size_t{64} * 1024;
// More than the six texts of a file can need at their longest; what is longer is no preferences file.
inline constexpr std::size_t longestPreferencesFile = 16 * longestPreferencesValue;

// What the preferences file keeps, as plain values. Not for what the values mean: the windows test positions,
// languages and paths. The initial values are those of a first launch; the date and the texts are the
// program's to set before reading.
struct Preferences {
    Date dateLaunch;
    bool dejaDonne = false;
    bool autoCheckUpdt = false;
    // Left, top, width, height. The last two are for other programs, and not taken over by the window.
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

// The whole file: 19 lines, or 20 without announcements, each with its line ending. A text with a line end in
// it is written as empty, since a file's name may hold one and what stands behind it would be read as a
// setting; so is one that is too long.
std::string PreferencesText(const Preferences& preferences);

// Puts line after line of a file's text into `preferences` up to the first that fails; false if one did: a
// date that is none, or an index that its control doesn't have. A line ends with CR, LF or CRLF; one with an
// unknown key says nothing. Keys and "True" are taken in any case. Numbers are those at the start of their
// text, truncated, 0 if there is none, held within their type. A path may be of bytes that aren't UTF-8; in
// other texts they are replaced.
bool ReadPreferences(std::string_view text, Preferences& preferences);

enum class PreferencesOutcome { Read, Missing, Failed };

// Reads the file in the folder into `preferences`. Missing leaves them unchanged. Failed is a file that can't
// be read, which leaves them unchanged too, or one with a line that fails.
PreferencesOutcome ReadPreferencesFile(const FolderItem& folder, Preferences& preferences);

// Replaces the file in the folder. With `keepOld`, for an old file whose reading failed, that one is kept
// first under badPreferencesFileName. Throws IOException, with the old file whole.
void WritePreferencesFile(const FolderItem& folder, const Preferences& preferences, bool keepOld);

} // namespace tessarolyne

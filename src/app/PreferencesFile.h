#pragma once

#include "app/PreferencesText.h"
#include "platform/FolderItem.h"

#include <cstddef>
#include <string_view>

namespace tessarolyne {

inline constexpr std::string_view preferencesFileName = "Tessarolyne Prefs.txt";
// A file that couldn't be read is kept under this name when another takes its place.
inline constexpr std::string_view badPreferencesFileName = "Tessarolyne Prefs.txt.bad";
// More than the six texts of a file can need at their longest; what is longer is no preferences file.
inline constexpr std::size_t longestPreferencesFile = std::size_t{1024} * 1024;
static_assert(longestPreferencesFile > 8 * longestPreferencesValue);

enum class PreferencesOutcome { Read, Missing, Failed };

// Reads the file in the folder into `preferences`. Missing leaves them unchanged. Failed is a file that can't
// be read, which leaves them unchanged too, or one with a line that fails, which leaves what stands before
// that line applied.
PreferencesOutcome ReadPreferencesFile(
    const FolderItem& folder, const PreferencesLimits& limits, Preferences& preferences);

// Replaces the file in the folder. With `keepOld`, for an old file whose reading failed, that one is kept
// first under badPreferencesFileName. Throws IOException, with the old file whole.
void WritePreferencesFile(const FolderItem& folder, const Preferences& preferences, bool keepOld);

} // namespace tessarolyne

#pragma once

#include <optional>
#include <string>

namespace tessarolyne {

// Where the desktop keeps things, by the XDG base directories and user directories of freedesktop.org. Each
// gives the path without a link in it, or nothing.

// $HOME, else the user's entry in the password file; as it stands there, links included.
std::optional<std::string> HomeFolder();
// $XDG_CONFIG_HOME, else ~/.config; made if it is missing, readable to the user alone.
std::optional<std::string> PreferencesFolder();
// XDG_DOCUMENTS_DIR of the user's file user-dirs.dirs, else ~/Documents; only if there is such a folder.
std::optional<std::string> DocumentsFolder();
// Where the running program's file lies.
std::optional<std::string> ApplicationFolder();

// What a line XDG_DOCUMENTS_DIR="…" says, with $HOME put in; nothing for any other line.
std::optional<std::string> DocumentsFolderOfLine(const std::string& line, const std::string& home);

} // namespace tessarolyne

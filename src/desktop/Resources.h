#pragma once

#include "platform/FileSystem.h"

#include <QString>

#include <optional>
#include <string>

namespace tessarolyne {

// The path of one of the program's resources ("sounds/Bip.wav"), in the installed tree or beside the build.
// Empty if there is no such file.
QString ResourcePath(const std::string& name);

// The same for a folder of them ("translations").
QString ResourceFolder(const std::string& name);

// Where the desktop keeps things, without a link in the path; nothing if there is no such folder. The one for
// preferences is made if it is missing, readable to the user alone.
std::optional<std::string> FindFolder(KnownFolder folder);

} // namespace tessarolyne

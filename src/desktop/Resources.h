#pragma once

#include <QString>

#include <string>

namespace tessarolyne {

// The path of one of the program's resources ("sounds/Bip.wav"), in the installed tree or beside the build.
// Empty if there is no such file.
QString ResourcePath(const std::string& name);

// The same for a folder of them ("translations").
QString ResourceFolder(const std::string& name);

} // namespace tessarolyne

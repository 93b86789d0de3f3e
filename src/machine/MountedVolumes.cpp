#include "machine/MountedVolumes.h"

#include <algorithm>
#include <sstream>
#include <string>

namespace tessarolyne {

namespace {

bool IsOctal(char c) {
    return c >= '0' && c <= '7';
}

// The table writes blank, tab, line feed and backslash as a backslash and three octal digits.
std::string Unescaped(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 3 < text.size() && IsOctal(text[i + 1]) && IsOctal(text[i + 2]) &&
            IsOctal(text[i + 3])) {
            plain +=
                static_cast<char>((text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 + (text[i + 3] - '0'));
            i += 3;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

} // namespace

bool LiesUnderMountFolders(const std::string& path) {
    return path.starts_with("/media/") || path.starts_with("/run/media/") || path.starts_with("/mnt/");
}

std::vector<Volume> MountedVolumes(std::istream& mountTable) {
    std::vector<Volume> volumes{{rootVolumeName, "/"}};
    for (std::string line; std::getline(mountTable, line);) {
        std::istringstream fields(line);
        std::string number, parent, device, source, mountPoint;
        if (!(fields >> number >> parent >> device >> source >> mountPoint)) {
            continue;
        }
        const std::string root = Unescaped(mountPoint);
        const Volume volume{root.substr(root.rfind('/') + 1), root};
        // A second mount over the first shows in the table as well.
        if (LiesUnderMountFolders(root) &&
            std::find(volumes.begin(), volumes.end(), volume) == volumes.end()) {
            volumes.push_back(volume);
        }
    }
    return volumes;
}

} // namespace tessarolyne

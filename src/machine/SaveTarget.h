#pragma once

#include "platform/FileSystem.h"

#include <optional>
#include <string>
#include <sys/types.h>

namespace tessarolyne {

// Where a save really goes, and what the new file takes over from the old one.
struct SaveTarget {
    struct Owner {
        mode_t permissions;
        uid_t user;
        gid_t group;
    };

    std::string folder;
    std::string name;
    std::optional<Owner> old; // nothing for a file that isn't there yet
};

// Follows links as the policy says, a dangling one too. Throws IOException for what a save must not replace:
// a folder, a device, a FIFO, a file that may not be written or whose name may not be taken, a chain of links
// without an end.
SaveTarget FindSaveTarget(const std::string& path, LinkPolicy links);

} // namespace tessarolyne

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

    std::string Path() const { return folder + "/" + name; }

    std::string folder;
    std::string name;
    std::optional<Owner> old; // nothing for a file that isn't there yet
};

// Follows links as the policy says, a dangling one too. Throws IOException for what a save must not replace:
// a folder, a device, a FIFO, a file that may not be written, a link whose name may not be taken, a chain of
// links without an end.
SaveTarget FindSaveTarget(const std::string& path, LinkPolicy links);

// Where a link leads, link after link, up to what is none, isn't there or can't be looked at. Throws
// IOException.
std::string FollowLinks(const std::string& path);

} // namespace tessarolyne

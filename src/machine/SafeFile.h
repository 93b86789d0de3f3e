#pragma once

#include "platform/FolderItem.h"

#include <cerrno>
#include <memory>
#include <optional>
#include <string>
#include <sys/types.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace tessarolyne {

// Calls again as long as a signal cut the call short.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

// Throws the IOException for a system call that has just set errno.
[[noreturn]] inline void ThrowErrno(const std::string& step) {
    throw IOException(step + ": " + std::generic_category().message(errno));
}

// An open file descriptor, closed when it goes. Close reports what the destructor can't.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() { Close(); }

    int operator*() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }

    // False with errno if the system reports a failure; the number is gone in any case, as Linux defines it,
    // so that a second attempt could close another thread's file.
    bool Close() {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0 || errno == EINTR;
    }

private:
    int number_;
};

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

// Begins a save, the one way in which files are written: a temporary file beside the target takes the bytes,
// is synced, takes the target's name, and the folder is synced. A failure leaves the old file whole and no
// temporary. The new file has the old one's permissions, access control list, owner and group as far as the
// user may give them; it doesn't take over extended attributes or further hard links. Where the folder takes
// no new file, or none that may replace the old one, the old one is written in place, as the last thing.
// `like`, if named, is a file to whose people the new one is open, in place of the one that it replaces.
// Throws IOException, see FindSaveTarget.
std::unique_ptr<OutputFile> BeginSave(
    const std::string& path, LinkPolicy links, const std::string& like = {});

// Removes the files in the folder that a save made and that no living process holds, as far as the
// folder can be read.
void SweepTemporaryFiles(const std::string& folder);

} // namespace tessarolyne

#pragma once

#include "machine/FileBytes.h"
#include "platform/FolderItem.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <utility>

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

// Gives a new, open file the owner, group, permissions and access control list of the file at the path that
// it is to replace, as far as the user may; what can't be had leaves it open to fewer people, never to more.
// False if more people could read it all the same, or if a list would be lost: it must not replace that file
// then. Throws IOException.
bool TakeOverAccess(int made, const std::string& path, const SaveTarget::Owner& old);

// A new, empty file with a name of the program's own, locked as long as this object lives so that a sweep
// knows it for a save under way. Removed when the object goes, unless it was renamed.
class TemporaryFile {
public:
    // Made in the open folder, which must outlive this. Nothing, with errno, where the folder takes no new
    // file; IOException for any other failure.
    static std::unique_ptr<TemporaryFile> Make(int folder, mode_t permissions);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    int Number() const { return *file_; }
    // Gives the file its final name. False with errno.
    bool TakeName(const std::string& name);

private:
    TemporaryFile(int folder, std::string name, Descriptor file)
        : folder_(folder), name_(std::move(name)), file_(std::move(file)) {}
    bool Lock();

    int folder_;
    std::string name_; // empty once renamed
    Descriptor file_;
};

// Removes the files in the folder that have such a name and that no living process holds, as far as the
// folder can be read.
void SweepTemporaryFiles(const std::string& folder);

// The one writer of files: a temporary file beside the target takes the bytes, is synced, takes the target's
// name, and the folder is synced. A failure leaves the old file whole and no temporary. The new file has the
// old one's permissions, access control list, owner and group as far as the user may give them; it doesn't
// take over extended attributes or further hard links. Where the folder takes no new file, or none that may
// replace the old one, the old one is written in place, as the last thing.
class SafeFile final : public OutputFile {
public:
    // The new file is open to the same people as the file `like`, if one is named, else as the one that it
    // replaces. Throws IOException, see FindSaveTarget.
    SafeFile(const std::string& path, LinkPolicy links, const std::string& like = {});

    void Write(std::string_view bytes) override;
    void Commit() override;

private:
    int Content() const;
    void Append(std::string_view bytes);
    void Finish();
    void SyncFolder();
    void End();

    SaveTarget target_;
    Descriptor folder_;
    // One of these takes the bytes; none after a Commit or a failure.
    std::unique_ptr<TemporaryFile> temporary_;
    Descriptor aside_;
    std::string buffer_;
};

} // namespace tessarolyne

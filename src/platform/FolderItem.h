#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tessarolyne {

// A file operation that failed: raised where it arises, caught at the operation that the user asked for. Its
// text names the step and the file for a developer; users read the texts of the string table instead.
class IOException final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// What stands under a path, looked at without following a link. Unknown is what can't be looked at: a file
// may be there, and opening it tells what is wrong.
enum class FileKind { None, Regular, Folder, Link, Other, Unknown };

// What a save does with a link: keep it and replace the file it leads to, or put a file in the link's place.
enum class LinkPolicy { ReplaceTarget, ReplaceLink };

enum class KnownFolder { Home, Preferences, Documents, Application };

// A mounted file system, by the name that the user sees and the folder under which it stands.
struct Volume {
    std::string name;
    std::string root;

    bool operator==(const Volume&) const = default;
};

// By what a file is known again: as long as all of it is the same, so is the content.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    std::int64_t changed = 0; // nanoseconds

    bool operator==(const FileStamp&) const = default;
};

// An open regular file, read from its start up to where its end was when it was opened, so that one that
// grows all the time has an end too.
class InputFile {
public:
    virtual ~InputFile() = default;

    // As it was when the file was opened.
    virtual FileStamp Stamp() const = 0;

    // Fills `bytes` from the file and gives the count; a lower count only at the end of the file. Throws
    // IOException.
    virtual std::size_t Read(std::span<char> bytes) = 0;
};

// A file being saved. Until Commit has returned, the place holds what it held before; an object that goes
// without a Commit, or whose call threw, leaves nothing behind.
class OutputFile {
public:
    virtual ~OutputFile() = default;

    // Throws IOException.
    virtual void Write(std::string_view bytes) = 0;
    // Puts the whole content in its place, as durably as the file system can. Once; throws IOException.
    virtual void Commit() = 0;
};

// The machine's files. Paths are native, absolute, without "." and ".." and without a zero byte; FolderItem
// sees to that. Not for launching files, which is the desktop's business.
class FileSystem {
public:
    virtual ~FileSystem() = default;

    virtual FileKind Kind(const std::string& path) const = 0;
    // Of the regular file to which the path leads; nothing if it leads to none.
    virtual std::optional<FileStamp> Stamp(const std::string& path) const = 0;
    // The path without a link in it; nothing if it leads nowhere. A link to what can't be looked at gives the
    // path to that.
    virtual std::optional<std::string> Resolve(const std::string& path) const = 0;

    // The root file system first, then what the user has mounted, each by the last part of its mount point.
    virtual std::vector<Volume> Volumes() const = 0;
    // Nothing if there is no such folder; the one for preferences is made if it is missing.
    virtual std::optional<std::string> Find(KnownFolder folder) = 0;

    // False if it didn't succeed.
    virtual bool MakeFolder(const std::string& path) = 0;

    // Never waits for a FIFO's other end. Throws IOException, also for all but regular files.
    virtual std::unique_ptr<InputFile> OpenForReading(const std::string& path) = 0;
    // Begins a save. Throws IOException, also for a folder, a device, a FIFO, or a file that may not be
    // written.
    virtual std::unique_ptr<OutputFile> CreateSafely(const std::string& path, LinkPolicy links) = 0;
    // Whether such a save would be let begin now.
    virtual bool CanReplace(const std::string& path, LinkPolicy links) const = 0;
    // Makes `copy` hold the content of the regular file `path`, replacing what stood there, unless that is
    // the file itself. Throws IOException.
    virtual void KeepAs(const std::string& path, const std::string& copy) = 0;
    // Removes what saves of killed runs left in the folder; a save under way in another process is left
    // alone.
    virtual void SweepLeftovers(const std::string& folder) = 0;

    // Whether the folder is one that the system shows as a single file, as macOS does.
    virtual bool IsPackage(const std::string&) const { return false; }
};

// A reference to a place in the file system, by value; a file need not stand there. Nil is an optional
// without a value. An alias is a symbolic link. Holds no open file and caches nothing: each answer is the
// disk's of that moment. The file system must outlive its items.
class FolderItem {
public:
    // Nil for a path that isn't absolute, has a ".." or holds a zero byte.
    static std::optional<FolderItem> FromNativePath(FileSystem& files, std::string_view path);
    // Nil if the desktop has no such folder; the one for preferences is made if it is missing.
    static std::optional<FolderItem> Find(FileSystem& files, KnownFolder folder);

    // The last part of the path as the file system has it; for the root of a volume, the volume's name.
    std::string Name() const;
    // Nil for the root of a volume.
    std::optional<FolderItem> Parent() const;
    // The item of that name in this folder, an alias replaced by its target unless it dangles. Nil if no file
    // can bear the name.
    std::optional<FolderItem> Child(std::string_view name) const;
    // The same, an alias as itself.
    std::optional<FolderItem> TrueChild(std::string_view name) const;

    // These three look at the item itself: a dangling alias exists, an alias of a folder is no directory.
    bool Exists() const { return files_->Kind(path_) != FileKind::None; }
    bool IsAlias() const { return files_->Kind(path_) == FileKind::Link; }
    bool Directory() const { return files_->Kind(path_) == FileKind::Folder; }

    const std::string& NativePath() const { return path_; }

    // False if it didn't succeed.
    bool CreateAsFolder() const { return files_->MakeFolder(path_); }
    // Of the file that the item is or leads to.
    std::optional<FileStamp> Stamp() const { return files_->Stamp(path_); }
    // Whether a save to this item would be let begin now.
    bool CanReplace(LinkPolicy links) const { return files_->CanReplace(path_, links); }

    FileSystem& Files() const { return *files_; }

    bool operator==(const FolderItem&) const = default;

private:
    FolderItem(FileSystem& files, std::string path) : files_(&files), path_(std::move(path)) {}

    FileSystem* files_;
    std::string path_;
};

} // namespace tessarolyne

#pragma once

#include "platform/FileSystem.h"

#include <optional>
#include <string>
#include <string_view>

namespace tessarolyne {

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
    // What an alias leads to, if that is anywhere; else the item itself.
    FolderItem Resolved() const;

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

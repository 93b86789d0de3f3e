#include "platform/FolderItem.h"

#include "platform/Text.h"

#include <utility>

namespace tessarolyne {

namespace {

bool CanBeName(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos &&
           name.find('\0') == std::string_view::npos;
}

// The name of the volume whose root folder this is; nothing for any other path.
std::optional<std::string> VolumeNameAt(const FileSystem& files, const std::string& path) {
    for (auto& volume : files.Volumes()) {
        if (volume.root == path) {
            return std::move(volume.name);
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<FolderItem> FolderItem::FromNativePath(FileSystem& files, std::string_view path) {
    if (!path.starts_with('/')) {
        return std::nullopt;
    }
    FolderItem item(files, "/");
    for (const std::string_view part : Split(path, "/")) {
        if (part.empty() || part == ".") {
            continue;
        }
        auto child = item.TrueChild(part);
        if (!child) {
            return std::nullopt;
        }
        item = *std::move(child);
    }
    return item;
}

std::optional<FolderItem> FolderItem::Find(FileSystem& files, KnownFolder folder) {
    const auto path = files.Find(folder);
    return path ? FromNativePath(files, *path) : std::nullopt;
}

std::string FolderItem::Name() const {
    if (auto volume = VolumeNameAt(*files_, path_)) {
        return *std::move(volume);
    }
    return path_.substr(path_.rfind('/') + 1);
}

std::optional<FolderItem> FolderItem::Parent() const {
    if (path_ == "/" || VolumeNameAt(*files_, path_)) {
        return std::nullopt;
    }
    const auto slash = path_.rfind('/');
    return FolderItem(*files_, slash == 0 ? "/" : path_.substr(0, slash));
}

std::optional<FolderItem> FolderItem::Child(std::string_view name) const {
    auto child = TrueChild(name);
    if (child && child->IsAlias()) {
        if (auto target = files_->Resolve(child->path_)) {
            child->path_ = *std::move(target);
        }
    }
    return child;
}

std::optional<FolderItem> FolderItem::TrueChild(std::string_view name) const {
    if (!CanBeName(name)) {
        return std::nullopt;
    }
    return FolderItem(*files_, (path_ == "/" ? "/" : path_ + "/").append(name));
}

} // namespace tessarolyne

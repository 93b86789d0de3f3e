#include "platform/FolderItem.h"

#include "platform/Text.h"

#include <utility>

namespace tessarolyne {

namespace {

constexpr std::string_view urlStart = "file://";

bool CanBeName(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos &&
           name.find('\0') == std::string_view::npos;
}

int HexDigit(char c) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto upper = c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
    const auto value = digits.find(upper);
    return value == std::string_view::npos ? -1 : static_cast<int>(value);
}

std::optional<std::string> PercentDecoded(std::string_view text) {
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            decoded += text[i];
            continue;
        }
        const int high = i + 2 < text.size() ? HexDigit(text[i + 1]) : -1;
        const int low = i + 2 < text.size() ? HexDigit(text[i + 2]) : -1;
        if (high < 0 || low < 0) {
            return std::nullopt;
        }
        decoded += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return decoded;
}

std::optional<FolderItem> Known(FileSystem& files, KnownFolder folder) {
    const auto path = files.Find(folder);
    return path ? FolderItem::FromNativePath(files, *path) : std::nullopt;
}

} // namespace

std::optional<FolderItem> FolderItem::FromNativePath(FileSystem& files, std::string_view path) {
    if (!path.starts_with('/')) {
        return std::nullopt;
    }
    FolderItem item(files, "/");
    while (!path.empty()) {
        const auto part = path.substr(0, path.find('/'));
        path.remove_prefix(part.size() < path.size() ? part.size() + 1 : part.size());
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

std::optional<FolderItem> FolderItem::GetTrueFolderItem(FileSystem& files, std::string_view urlPath) {
    if (!urlPath.starts_with(urlStart)) {
        return std::nullopt;
    }
    urlPath.remove_prefix(urlStart.size());
    if (urlPath.starts_with("localhost/")) {
        urlPath.remove_prefix(urlPath.find('/'));
    }
    const auto path = PercentDecoded(urlPath);
    return path ? FromNativePath(files, *path) : std::nullopt;
}

std::optional<FolderItem> FolderItem::GetFolderItem(FileSystem& files, std::string_view urlPath) {
    const auto item = GetTrueFolderItem(files, urlPath);
    return item ? std::optional(item->Resolved()) : std::nullopt;
}

std::string FolderItem::Name() const {
    if (auto volume = files_->VolumeNameAt(path_)) {
        return *std::move(volume);
    }
    return path_.substr(path_.rfind('/') + 1);
}

std::optional<FolderItem> FolderItem::Parent() const {
    if (path_ == "/" || files_->VolumeNameAt(path_)) {
        return std::nullopt;
    }
    const auto slash = path_.rfind('/');
    return FolderItem(*files_, slash == 0 ? "/" : path_.substr(0, slash));
}

std::optional<FolderItem> FolderItem::Child(std::string_view name) const {
    const auto child = TrueChild(name);
    return child ? std::optional(child->Resolved()) : std::nullopt;
}

std::optional<FolderItem> FolderItem::TrueChild(std::string_view name) const {
    if (!CanBeName(name)) {
        return std::nullopt;
    }
    return FolderItem(*files_, (path_ == "/" ? "/" : path_ + "/").append(name));
}

FolderItem FolderItem::Resolved() const {
    if (IsAlias()) {
        if (auto target = files_->Resolve(path_)) {
            return FolderItem(*files_, *std::move(target));
        }
    }
    return *this;
}

std::string FolderItem::URLPath() const {
    return std::string(urlStart) + EncodeURLComponent(path_, "/");
}

namespace SpecialFolder {

std::optional<FolderItem> Preferences(FileSystem& files) {
    return Known(files, KnownFolder::Preferences);
}
std::optional<FolderItem> Documents(FileSystem& files) {
    return Known(files, KnownFolder::Documents);
}
std::optional<FolderItem> Application(FileSystem& files) {
    return Known(files, KnownFolder::Application);
}

} // namespace SpecialFolder

} // namespace tessarolyne

#include "ui/FileItems.h"

namespace tessarolyne {

namespace {

// A name of the file system as the field of a colon path, and back.
std::string WithColonAndSlashSwapped(std::string name) {
    for (char& c : name) {
        c = c == ':' ? '/' : c == '/' ? ':' : c;
    }
    return name;
}

// The names of the path, the volume's first; the mark of a folder at its end is no name.
std::vector<std::string> Names(std::string_view chemin) {
    std::vector<std::string> names;
    while (true) {
        const auto colon = chemin.find(':');
        names.push_back(WithColonAndSlashSwapped(std::string(chemin.substr(0, colon))));
        if (colon == std::string_view::npos || colon + 1 == chemin.size()) {
            return names;
        }
        chemin.remove_prefix(colon + 1);
    }
}

// The folder in which the last name lies; of a path with one name, the volume itself. Nil if it isn't there.
std::optional<FolderItem> FolderOn(
    FileSystem& files, const Volume& volume, const std::vector<std::string>& names) {
    auto item = FolderItem::FromNativePath(files, volume.root);
    for (std::size_t i = 1; item && item->Exists() && i + 1 < names.size(); ++i) {
        item = item->TrueChild(names[i]);
    }
    return item && item->Exists() ? item : std::nullopt;
}

} // namespace

std::string AbsPath_f(const FolderItem& item, bool marquerDossier) {
    std::string chemin = WithColonAndSlashSwapped(item.Name());
    if (marquerDossier && item.Directory()) {
        chemin += ':';
    }
    for (auto parent = item.Parent(); parent; parent = parent->Parent()) {
        chemin.insert(0, WithColonAndSlashSwapped(parent->Name()) + ':');
    }
    return chemin;
}

std::string ShownPath(const FolderItem& item) {
    const std::string& path = item.NativePath();
    const std::string home = item.Files().Find(KnownFolder::Home).value_or("");
    return !home.empty() && path.starts_with(home + '/') ? "~" + path.substr(home.size()) : path;
}

std::optional<FolderItem> GetFitemAbsPath(FileSystem& files, std::string_view chemin, bool vraiItem) {
    const auto names = Names(chemin);
    if (names.front().empty()) {
        return std::nullopt;
    }
    std::optional<FolderItem> firstFolder;
    for (const auto& volume : files.Volumes()) {
        auto folder = volume.name == names.front() ? FolderOn(files, volume, names) : std::nullopt;
        if (folder && names.size() == 1) {
            return folder;
        }
        const auto item = folder ? folder->TrueChild(names.back()) : std::nullopt;
        if (item && item->Exists()) {
            return vraiItem ? item : folder->Child(names.back());
        }
        if (item && !firstFolder) {
            firstFolder = folder;
        }
    }
    return firstFolder ? firstFolder->TrueChild(names.back()) : std::nullopt;
}

bool PasNil_Existe_Alias(const std::optional<FolderItem>& item, bool verifierAlias) {
    if (!item || !item->Exists()) {
        return false;
    }
    return !verifierAlias || !item->IsAlias() || !GetTargetItem_f(item)->IsAlias();
}

std::optional<FolderItem> GetTargetItem_f(const std::optional<FolderItem>& item) {
    const auto parent = item ? item->Parent() : std::nullopt;
    return parent ? parent->Child(item->Name()) : item;
}

std::optional<FolderItem> MemeItem(const std::optional<FolderItem>& item) {
    const auto parent = item ? item->Parent() : std::nullopt;
    return parent ? parent->TrueChild(item->Name()) : item;
}

bool IsPackage_f(const FolderItem& item) {
    return item.Files().IsPackage(item.NativePath());
}

bool DossPasPack_f(const FolderItem& item) {
    return item.Directory() && !IsPackage_f(item);
}

} // namespace tessarolyne

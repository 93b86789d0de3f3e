#pragma once

#include "platform/FolderItem.h"

#include <optional>
#include <string>
#include <string_view>

// Questions about files that the program asks in several places, and the colon path "Volume:Folder:File" by
// which it stores them. A trailing ":" marks a folder. In the names ":" and "/" change places, so that a name
// with ":" survives. None of these shows a message.
namespace tessarolyne {

// The colon path of an item. `marquerDossier` appends ":" to a folder.
std::string AbsPath_f(const FolderItem& item, bool marquerDossier);

// The item's place as the desktop writes it: "~" for the user's own folder.
std::string ShownPath(const FolderItem& item);

// The item of a colon path, an alias at its end as itself if `vraiItem`, else its target. Of several volumes
// of that name the one that has the item wins, else the first that has its folder. Nil if there is none.
std::optional<FolderItem> GetFitemAbsPath(FileSystem& files, std::string_view chemin, bool vraiItem);

// Whether the item is there; with `verifierAlias`, an alias only if it leads somewhere.
bool PasNil_Existe_Alias(const std::optional<FolderItem>& item, bool verifierAlias);

// The item with its alias resolved; a dangling alias stays as it is.
std::optional<FolderItem> GetTargetItem_f(const std::optional<FolderItem>& item);

// A fresh reference to the same item, an alias as itself.
std::optional<FolderItem> MemeItem(const std::optional<FolderItem>& item);

// Whether the item is a folder that its system shows as a single file. False where the system has no such
// thing.
bool IsPackage_f(const FolderItem& item);

// A folder that is no package.
bool DossPasPack_f(const FolderItem& item);

} // namespace tessarolyne

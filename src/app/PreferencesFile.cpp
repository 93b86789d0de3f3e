#include "app/PreferencesFile.h"

#include "platform/FileSystem.h"
#include "platform/TextStreams.h"
#include "ui/FileItems.h"

#include <string>
#include <vector>

namespace tessarolyne {

namespace {

FolderItem ItemIn(const FolderItem& folder, std::string_view name) {
    return folder.TrueChild(name).value();
}

std::vector<std::string> ReadLines(const FolderItem& item) {
    auto stream = TextInputStream::Open(item);
    std::vector<std::string> lines;
    std::size_t left = longestPreferencesFile;
    while (!stream.AtEnd()) {
        if (left == 0) {
            throw IOException("too long for a preferences file");
        }
        lines.push_back(stream.ReadLine(left - 1));
        left -= lines.back().size() + 1;
    }
    return lines;
}

} // namespace

PreferencesOutcome ReadPreferencesFile(
    const FolderItem& folder, const PreferencesLimits& limits, Preferences& preferences) {
    const auto item = ItemIn(folder, preferencesFileName);
    if (!item.Exists()) {
        return PreferencesOutcome::Missing;
    }
    try {
        return ReadPreferences(ReadLines(item), limits, preferences) ? PreferencesOutcome::Read
                                                                     : PreferencesOutcome::Failed;
    } catch (const IOException&) {
        return PreferencesOutcome::Failed;
    }
}

void WritePreferencesFile(const FolderItem& folder, const Preferences& preferences, bool keepOld) {
    const auto item = ItemIn(folder, preferencesFileName);
    if (keepOld && PasNil_Existe_Alias(item, true)) {
        const auto copy = ItemIn(folder, badPreferencesFileName);
        folder.Files().KeepAs(item.NativePath(), copy.NativePath());
    }
    auto stream = TextOutputStream::Create(item);
    stream.Write(PreferencesText(preferences));
    stream.Close();
}

} // namespace tessarolyne

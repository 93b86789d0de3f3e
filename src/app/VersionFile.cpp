#include "app/VersionFile.h"

#include "platform/Text.h"
#include "ui/Version.h"

#include <algorithm>

namespace tessarolyne {

namespace {

constexpr std::string_view title = "Release Notes";
constexpr std::string_view unsecuredWeb = "http://";
constexpr std::string_view versionMark = "v.";
constexpr std::string_view olderVersions = "Older versions";

constexpr char lineBreak = '\r';

// The text before the first line break, which is taken off `text` together with the break.
std::string_view TakeLine(std::string_view& text) {
    const auto end = std::min(text.size(), text.find(lineBreak));
    const auto line = text.substr(0, end);
    text.remove_prefix(std::min(text.size(), end + 1));
    return line;
}

// Two hyphens between blanks begin an item; at the very start of the notes no blank stands before them.
std::string WithBullets(std::string_view notes) {
    const auto end = notes.find_last_not_of(lineBreak);
    std::string text = ReplaceAll(notes.substr(0, end + 1), " -- ", "\r• ");
    if (const auto first = text.find("-- "); first != std::string::npos) {
        text.replace(first, std::string_view("-- ").size(), "• ");
    }
    return text;
}

} // namespace

std::optional<VersionFile> ReadVersionFile(std::string_view text) {
    const std::string normalised = ReplaceLineEndings(text, std::string_view(&lineBreak, 1));
    std::string_view page = normalised;
    TakeLine(page);
    page = page.substr(0, page.find(olderVersions));
    const auto titleLine = TakeLine(page);
    const auto addressLine = TakeLine(page);
    const auto versionLine = TakeLine(page);
    if (!titleLine.starts_with(title) || !addressLine.starts_with(unsecuredWeb) ||
        !versionLine.starts_with(versionMark)) {
        return std::nullopt;
    }
    return VersionFile{std::string(addressLine), std::string(versionLine), WithBullets(page)};
}

std::string HistoryPage(std::string_view requestedUrl) {
    if (*historyAddress != '\0') {
        return historyAddress;
    }
    constexpr std::string_view ending = "_V.txt";
    return Left(requestedUrl, Len(requestedUrl) - Len(ending)) + "_AffV.html";
}

} // namespace tessarolyne

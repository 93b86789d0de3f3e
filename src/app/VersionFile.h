#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessarolyne {

// The version file, as plain texts. Not for what it means: whether the version is new, and whether the
// address may be opened, is decided by who asked.
struct VersionFile {
    std::string downloadPage; // begins with "http://", and may be anything after that
    std::string version;      // begins with "v."
    std::string notes;        // lines parted by carriage returns, "• " before each item

    bool operator==(const VersionFile&) const = default;
};

// Reads the requested address, a line break and the page; nothing from a page without the three lines, such
// as a server's error page. Lines end with CR, LF or both. What stands from the words "Older versions" on is
// no part of the page. Any text is allowed; time is linear in it.
std::optional<VersionFile> ReadVersionFile(std::string_view text);

// The address of the page with the history of versions, which stands beside the version file.
std::string HistoryPage(std::string_view requestedUrl);

} // namespace tessarolyne

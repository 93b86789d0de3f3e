#pragma once

#include <string>
#include <string_view>

namespace tessarolyne {

// What a fetch of the version file brought, as plain texts. Not for what it means: whether the version is
// new, and whether the address may be opened, is decided by who asked.
struct VersionReply {
    enum class Kind {
        ErrorCode,       // no page: `errorCode`
        NotAVersionFile, // a page without the three lines, such as a server's error page
        VersionFile      // the other four
    };

    Kind kind = Kind::ErrorCode;
    std::string errorCode;    // decimal
    std::string requestedUrl; // where the page came from
    std::string downloadPage; // begins with "http://", and may be anything after that
    std::string version;      // begins with "v."
    std::string notes;        // lines parted by carriage returns, "• " before each item

    bool operator==(const VersionReply&) const = default;
};

// Reads the hand-over text: an error code alone, or the requested address, a line break and the page. Lines
// end with CR, LF or both. What stands from the words "Older versions" on is no part of the page. Any text is
// allowed; time is linear in it.
VersionReply ReadVersionReply(std::string_view text);

// The address of the page with the history of versions, which stands beside the version file.
std::string HistoryPage(std::string_view requestedUrl);

} // namespace tessarolyne

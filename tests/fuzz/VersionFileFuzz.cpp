// Any bytes whatever as what the update check fetched: what is read is what a slow and obvious reading finds,
// doesn't depend on the kind of line ending, and no address passes that could lead elsewhere than it says.
#include "app/VersionFile.h"
#include "fuzz/Must.h"
#include "platform/Text.h"
#include "ui/SafeAddress.h"

#include <algorithm>
#include <vector>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

void CheckReading(const std::string& bytes, const VersionReply& reply) {
    std::vector<std::string> lines;
    const std::string text = ReplaceLineEndings(bytes, "\n") + "\n";
    for (std::size_t at = 0; at < text.size(); at += lines.back().size() + 1) {
        lines.push_back(text.substr(at, text.find('\n', at) - at));
    }
    if (lines.size() == 1) {
        Must(reply.kind == VersionReply::Kind::ErrorCode && reply.errorCode == bytes, "one line is a code");
        return;
    }
    Must(reply.requestedUrl == lines[0], "the first line is the address that was asked for");
    for (std::size_t i = 1; i < lines.size(); ++i) {
        if (const auto cut = lines[i].find("Older versions"); cut != std::string::npos) {
            lines[i].resize(cut);
            lines.resize(i + 1);
        }
    }
    lines.resize(std::max<std::size_t>(lines.size(), 4));
    const bool isVersionFile = lines[1].starts_with("Release Notes") && lines[2].starts_with("http://") &&
                               lines[3].starts_with("v.");
    Must((reply.kind == VersionReply::Kind::VersionFile) == isVersionFile, "three lines make a version file");
    if (isVersionFile) {
        Must(reply.downloadPage == lines[2] && reply.version == lines[3], "lines two and three");
        Must(!reply.notes.ends_with('\r') && reply.notes.find('\n') == std::string::npos, "breaks are CR");
    }
}

// A browser's view of the address, in which user information, a backslash or a blank could hide the host.
void CheckAddress(const std::string& address) {
    if (!IsSafeAddress(address)) {
        return;
    }
    for (const char c : address) {
        Must(c > ' ' && c < 127 && c != '\\' && c != '"' && c != '<' && c != '`', "plain characters only");
    }
    const auto authority = address.substr(7, address.find_first_of("/?#", 7) - 7);
    Must(!authority.empty() && authority[0] != ':', "there is a host");
    Must(
        authority.find('@') == std::string::npos && authority.find('%') == std::string::npos, "host as seen");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const auto reply = ReadVersionReply(bytes);
    CheckReading(bytes, reply);
    constexpr const char* endings[] = {"\r", "\n", "\r\n"};
    const std::string alike = ReplaceLineEndings(bytes, endings[size % std::size(endings)]);
    Must(ReadVersionReply(alike) == reply, "line endings are all alike");
    CheckAddress(reply.downloadPage);
    CheckAddress("http://" + bytes);
    return 0;
}

// Any bytes whatever as what the update check fetched: what is read stands there, and doesn't
// depend on the kind of line ending.
#include "app/VersionFile.h"
#include "fuzz/Fuzz.h"
#include "platform/Text.h"

#include <iterator>

using namespace tessarolyne;
using namespace tessarolyne::tests;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const auto reply = ReadVersionReply(bytes);
    const std::string text = ReplaceLineEndings(bytes, "\n") + "\n";
    const auto line = text.substr(0, text.find('\n'));
    const bool isAlone = line.size() + 1 == text.size();
    Must((reply.kind == VersionReply::Kind::ErrorCode) == isAlone, "one line is a code");
    Must((isAlone ? reply.errorCode : reply.requestedUrl) == line, "the first line");
    if (reply.kind == VersionReply::Kind::VersionFile) {
        const auto nextTwo = "\n" + reply.downloadPage + "\n" + reply.version;
        Must(text.starts_with(line + "\nRelease Notes"), "the second line");
        Must(text.find(nextTwo) != std::string::npos, "the next two");
        Must(!reply.notes.ends_with('\r') && reply.notes.find('\n') == std::string::npos, "breaks are CR");
    }
    constexpr const char* endings[] = {"\r", "\n", "\r\n"};
    const std::string alike = ReplaceLineEndings(bytes, endings[size % std::size(endings)]);
    Must(ReadVersionReply(alike) == reply, "line endings are all alike");
    return 0;
}

// Any bytes whatever as what the update check fetched: what is read stands there, and doesn't
// depend on the kind of line ending.
#include "app/VersionFile.h"
#include "fuzz/Fuzz.h"
#include "platform/Text.h"

#include <iterator>

using namespace tessarolyne;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const auto file = ReadVersionFile(bytes);
    if (file) {
        const std::string text = ReplaceLineEndings(bytes, "\n") + "\n";
        Must(text.find('\n') == text.find("\nRelease Notes"), "the second line");
        Must(
            text.find("\n" + file->downloadPage + "\n" + file->version) != std::string::npos, "the next two");
        Must(!file->notes.ends_with('\r') && file->notes.find('\n') == std::string::npos, "breaks are CR");
    }
    constexpr const char* endings[] = {"\r", "\n", "\r\n"};
    const std::string alike = ReplaceLineEndings(bytes, endings[size % std::size(endings)]);
    Must(ReadVersionFile(alike) == file, "line endings are all alike");
    return 0;
}

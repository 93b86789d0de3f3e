// Any bytes whatever as a preferences file: what is read stays within its types and limits, doesn't depend on
// the kind of line ending, and comes back from the file that is written of it.
#include "app/PreferencesFile.h"
#include "fuzz/Fuzz.h"
#include "platform/Text.h"

using namespace tessarolyne;

namespace {

std::pair<bool, Preferences> Read(const std::string& bytes) {
    Preferences preferences;
    const bool read = ReadPreferences(bytes, preferences);
    return {read, preferences};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const auto outcome = Read(bytes);
    Must(outcome == Read(ReplaceLineEndings(bytes, "\r\n")), "line endings are all alike");

    const auto& preferences = outcome.second;
    const auto fits = [](int index, int rows) { return index >= 0 && index < rows; };
    Must(fits(preferences.baseOrg, 35) && fits(preferences.baseDest, 35) && fits(preferences.radio09AZ, 2),
        "an index has its row or button");
    for (const auto& word : {preferences.langue, preferences.monnaie, preferences.centime,
             preferences.monnaies, preferences.centimes}) {
        Must(WithoutInvalidUtf8(word) == word, "what is shown is UTF-8");
    }
    Must(Read(PreferencesText(preferences)) == std::pair(true, preferences), "what was read comes back");
    return 0;
}

// Any bytes whatever as a preferences file: what is read stays within its types and limits, doesn't depend on
// where the chunks end, and comes back from the file that is written of it.
#include "app/PreferencesText.h"
#include "fuzz/Must.h"
#include "platform/TextInputStream.h"
#include "platform/Utf8.h"
#include "support/MemoryFileSystem.h"

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

struct Outcome {
    bool read;
    Preferences preferences;
    bool operator==(const Outcome&) const = default;
};

Outcome Read(const std::string& bytes, std::size_t chunkSize) {
    TextInputStream stream(std::make_unique<MemoryInputFile>(bytes), chunkSize);
    std::vector<std::string> lines;
    while (!stream.AtEnd()) {
        lines.push_back(stream.ReadLine());
    }
    Outcome outcome{};
    outcome.read = ReadPreferences(lines, PreferencesLimits(), outcome.preferences);
    return outcome;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const auto outcome = Read(bytes, 65536);
    Must(outcome == Read(bytes, 3 + size % 13), "the chunks don't matter");

    const auto& preferences = outcome.preferences;
    Must(preferences.baseOrg >= 0 && preferences.baseOrg < 35, "the first base has a row");
    Must(preferences.baseDest >= 0 && preferences.baseDest < 35, "the second base has a row");
    Must(preferences.radio09AZ == 0 || preferences.radio09AZ == 1, "the alphabet has a button");
    Must(
        Date::FromSQLDateTime(preferences.dateLaunch.SQLDateTime()) == preferences.dateLaunch, "a real date");
    for (const auto& word : {preferences.langue, preferences.monnaie, preferences.centime,
             preferences.monnaies, preferences.centimes}) {
        Must(WithoutInvalidUtf8(word) == word, "what is shown is UTF-8");
    }
    const auto again = Read(PreferencesText(preferences), 65536);
    Must(again.read && again.preferences == preferences, "what was read comes back");
    return 0;
}

#include "app/PreferencesText.h"

#include <doctest/doctest.h>

#include <cstdint>
#include <random>

using namespace tessarolyne;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Random = std::mt19937;

std::size_t Below(Random& random, std::size_t limit) {
    return random() % limit;
}

// Bytes on which a reader of lines and numbers may stumble.
const std::vector<std::string> pieces = {"\r", "\n", "\r\n", " :@: ", ":@:", "\xEF\xBB\xBF", "-",
    "99999999999999999999", ",", ",,", "True", "\xC0\xAF", "\xE9", std::string(1, '\0'),
    "2024-02-30 00:00:00", "36", "-1", "e999", "0x10", "\xE2\x80\xA8"};

std::string Mutated(std::string text, Random& random) {
    for (std::size_t changes = 1 + Below(random, 6); changes > 0; --changes) {
        const auto place = Below(random, text.size() + 1);
        const auto count = Below(random, 20);
        switch (Below(random, 4)) {
        case 0:
            text.erase(place, count);
            break;
        case 1:
            text.insert(place, pieces[Below(random, pieces.size())]);
            break;
        case 2:
            text.insert(place, text.substr(Below(random, text.size() + 1), count * 4));
            break;
        default:
            if (place < text.size()) {
                text[place] = static_cast<char>(Below(random, 256));
            }
        }
    }
    return text;
}

} // namespace

TEST_CASE("Any bytes whatever are read within their types, and what was read comes back") {
    Random random(20261122);
    Preferences preferences;
    preferences.langue = "fr";
    preferences.monnaies = "euros :@: é";
    preferences.fichNbPrems = "Root:home:\xE9";
    const auto whole = PreferencesText(preferences);
    int runs = 0;
    for (; runs < 20'000; ++runs) {
        const auto bytes = Mutated(whole, random);
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    CHECK(runs == 20'000);
}

#include "app/PreferencesText.h"
#include "fuzz/Damage.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

TEST_CASE("Any bytes whatever are read within their types, and what was read comes back") {
    Preferences preferences;
    preferences.langue = "fr";
    preferences.monnaies = "euros :@: é";
    preferences.fichNbPrems = "Root:home:\xE9";
    RunOnDamaged([text = PreferencesText(preferences)](Random&) { return text; },
        {"\r", "\n", "\r\n", " :@: ", ":@:", "\xEF\xBB\xBF", "-", "99999999999999999999", ",", ",,", "True",
            "\xC0\xAF", "\xE9", std::string(1, '\0'), "2024-02-30 00:00:00", "36", "-1", "e999", "0x10",
            "\xE2\x80\xA8"});
}

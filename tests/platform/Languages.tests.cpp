#include "platform/Languages.h"

#include <doctest/doctest.h>

#include <sstream>
#include <string>
#include <vector>

using tessarolyne::CatalogueChain;
using Names = std::vector<std::string>;

namespace {

Names Split(const std::string& text) {
    Names names;
    std::istringstream stream(text);
    for (std::string name; std::getline(stream, name, ':');) {
        names.push_back(name);
    }
    return names;
}

std::string Joined(const Names& names) {
    std::string text;
    for (const std::string& name : names) {
        text += (text.empty() ? "" : ":") + name;
    }
    return text;
}

} // namespace

TEST_CASE("The first wanted language that there is decides, and a region falls back on its language") {
    const Names available = {"en", "en_CA", "en_GB", "en_US", "fr_BE", "fr_CH", "pt_BR"};
    const struct {
        std::string wanted, chain;
    } rows[] = {
        {"en_GB:en", "en_GB:en"},
        {"en_AU:en_GB", "en"},
        {"fr_BE:en", "fr_BE"},
        {"fr_FR:en_US", ""},
        {"fr:en", ""},
        {"de:en", "en"},
        {"de_CH:fr_CH:en", "fr_CH"},
        {"", ""},
        // a region's catalogue serves that region alone
        {"pt_PT:en", "en"},
        // spellings of the environment, of the desktop, and wrong ones
        {"en_GB.UTF-8", "en_GB:en"},
        {"fr_CH.utf8@euro", "fr_CH"},
        {"EN-us", "en_US:en"},
        {"en-Latn-GB", "en_GB:en"},
        {"en-u-ca-gregory", "en"},
        {"english:e:e1:_GB::-:fr_BE", "fr_BE"},
        {"fra", ""},
        // these name no language
        {"C", ""},
        {"tlh:C:en", "en"},
    };
    for (const auto& row : rows) {
        CHECK_MESSAGE(Joined(CatalogueChain(Split(row.wanted), available, "fr")) == row.chain, row.wanted);
    }
}

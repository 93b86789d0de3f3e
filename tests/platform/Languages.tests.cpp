#include "platform/Languages.h"

#include <doctest/doctest.h>

using tessarolyne::CatalogueChain;
using Names = std::vector<std::string>;

TEST_CASE("The first wanted language that there is decides, and a region falls back on its language") {
    const Names available = {"en", "en_CA", "en_GB", "en_US", "fr_BE", "fr_CH", "pt_BR"};
    const struct {
        Names wanted, chain;
    } rows[] = {
        {{"en_AU", "en_GB"}, {"en"}},
        {{"fr_BE", "en"}, {"fr_BE"}},
        {{"fr_FR", "en_US"}, {}},
        {{"de"}, {}},
        {{"de_CH", "fr_CH", "en"}, {"fr_CH"}},
        {{"pt_PT", "en"}, {"en"}},
        {{"en_GB.UTF-8"}, {"en_GB", "en"}},
        {{"fr_CH.utf8@euro"}, {"fr_CH"}},
        {{"EN-us"}, {"en_US", "en"}},
        {{"en-Latn-GB"}, {"en_GB", "en"}},
        {{"en-u-ca-gregory"}, {"en"}},
        {{"english", "e", "e1", "_GB", "", "-", "fr_BE"}, {"fr_BE"}},
        {{"tlh", "C", "en"}, {"en"}},
    };
    for (const auto& row : rows) {
        CAPTURE(&row - rows);
        CHECK(CatalogueChain(row.wanted, available, "fr") == row.chain);
    }
}

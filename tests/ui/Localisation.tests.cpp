#include "ui/Localisation.h"
#include "platform/System.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace tessarolyne;

namespace {

const std::vector<std::string>& Names() {
    static const std::vector<std::string> names = {
#define TEXT(name, text) #name,
#include "ui/Localisation.def"
#undef TEXT
    };
    return names;
}

struct OneTranslation final : Translations {
    std::optional<std::string> Find(std::string_view key, std::string_view language) const override {
        if (key == "Localisation.Txt_Monnaie") {
            return language == "en" ? "pound" : "franc";
        }
        return std::nullopt;
    }
};

} // namespace

TEST_CASE("The table has its 92 texts, each once and in order") {
    CHECK(Names().size() == 92);
    CHECK(std::is_sorted(Names().begin(), Names().end(), [](const std::string& a, const std::string& b) {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
            [](char x, char y) { return std::tolower(x) < std::tolower(y); });
    }));
    CHECK(std::adjacent_find(Names().begin(), Names().end()) == Names().end());
}

TEST_CASE("A text without a translation is its French default without the mark") {
    CHECK(Localisation::Txt_ErrNbre() == "#Erreur Nbre !");
    CHECK(Localisation::Txt_Attente() == "…");
    CHECK(Localisation::A_LangLoc("en") == "fr");
}

TEST_CASE("A translation is looked up afresh at each call, by its key and language") {
    const OneTranslation translations;
    CHECK(Localisation::Txt_Monnaie() == "euro");
    System::UseTranslations(&translations);
    CHECK(Localisation::Txt_Monnaie() == "franc");
    CHECK(Localisation::Txt_Monnaie("en") == "pound");
    CHECK(Localisation::Txt_Monnaies() == "euros");
    System::UseTranslations(nullptr);
    CHECK(Localisation::Txt_Monnaie() == "euro");
}

#include "ui/Localisation.h"
#include "platform/System.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

namespace {

struct OneTranslation final : Translations {
    std::optional<std::string> Find(std::string_view key, std::string_view language) const override {
        if (key == "Localisation.Txt_Monnaie") {
            return language == "en" ? "pound" : "franc";
        }
        return std::nullopt;
    }
};

} // namespace

TEST_CASE("A translation is looked up afresh at each call, by its key and language; without one the text is "
          "French") {
    const OneTranslation translations;
    CHECK(Localisation::Txt_Monnaie() == "euro");
    System::UseTranslations(&translations);
    CHECK(Localisation::Txt_Monnaie() == "franc");
    CHECK(Localisation::Txt_Monnaie("en") == "pound");
    CHECK(Localisation::Txt_Monnaies() == "euros");
    System::UseTranslations(nullptr);
    CHECK(Localisation::Txt_Monnaie() == "euro");
}

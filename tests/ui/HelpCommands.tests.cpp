#include "app/Version.h"
#include "platform/MenuBar.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"
#include "ui/WinInfos.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

void Choose(TestWorld& world, const char* item) {
    world.program->app.GetMenuBar()->Find(item)->UserChose(world.program->app);
}

} // namespace

TEST_CASE("The help says that there is none, and leads to the about window or to the questions page") {
    TestWorld world;
    const std::string questions = std::string(authorSite) + "/prg/Xojo/Tessarolyne_FAQ.html";
    SUBCASE("about") {
        world.dialogs.Expect(DialogButton::Action);
        world.loop.WhileModal([&] { world.program->winInfos().BoutonOk.UserPressed(); });
        Choose(world, "AideAide");
        CHECK(world.stage.Count<WinInfos>() == 1);
        CHECK(world.desktop.opened.empty());
    }
    SUBCASE("questions") {
        world.dialogs.Expect(DialogButton::Alternate);
        Choose(world, "AideAide");
        CHECK(world.stage.Count<WinInfos>() == 0);
        CHECK(world.desktop.opened == std::vector{questions});
    }
    SUBCASE("nothing") {
        world.dialogs.Expect(DialogButton::Cancel);
        Choose(world, "AideAide");
        CHECK(world.stage.Count<WinInfos>() == 0);
        CHECK(world.desktop.opened.empty());
    }
    const MessageDialog& dialog = world.dialogs.asked.at(0);
    CHECK(dialog.message ==
          "L'aide n'est pas disponible pour Tessarolyne.\rVeuillez lire “À propos de Tessarolyne”.\r "
          "\rCette version a été compilée pour Mac INTEL - Cocoa 64-bit (2018r2).");
    CHECK(dialog.actionCaption == "Lire À propos");
    CHECK(dialog.cancelCaption == "Fermer");
    CHECK(dialog.alternateCaption == "FAQ");
    CHECK(dialog.alternateHelpTag == questions);
}

TEST_CASE("The donation command settles the prompt whether the page opens or not") {
    TestWorld world;
    world.program->app.DejaDonne = false;
    world.desktop.takesAddresses = false;
    world.dialogs.ExpectTell();
    Choose(world, "AppleDon");
    CHECK(world.program->app.DejaDonne);
    CHECK(world.dialogs.told == std::vector{std::string(authorSite) + "/site/PayPage.html?Tessarolyne"});
}

#include "app/Version.h"
#include "platform/MenuBar.h"
#include "support/TestWorld.h"
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
    const std::string questions = std::string(authorSite) + "/prg/Xojo/Tessarolyne_FAQ.html";
    for (const DialogButton answer : {DialogButton::Action, DialogButton::Alternate, DialogButton::Cancel}) {
        TestWorld world;
        world.dialogs.Expect(answer);
        world.loop.WhileModal([&] { world.program->winInfos().BoutonOk.UserPressed(); });
        Choose(world, "AideAide");
        const bool asks = answer == DialogButton::Alternate;
        CHECK(world.stage.Count<WinInfos>() == (answer == DialogButton::Action ? 1 : 0));
        CHECK(world.desktop.opened == (asks ? std::vector{questions} : std::vector<std::string>()));
        const MessageDialog& dialog = world.dialogs.asked.at(0);
        CHECK(dialog.message ==
              "L'aide n'est pas disponible pour Tessarolyne.\rVeuillez lire “À propos de Tessarolyne”.\r "
              "\rCette version a été compilée pour Mac INTEL - Cocoa 64-bit (2018r2).");
        CHECK(dialog.alternateHelpTag == questions);
    }
}

TEST_CASE("The donation command settles the prompt whether the page opens or not") {
    TestWorld world;
    world.program->app.DejaDonne = false;
    world.desktop.takesAddresses = false;
    world.dialogs.ExpectTell();
    Choose(world, "AppleDon");
    CHECK(world.program->app.DejaDonne);
    CHECK(world.dialogs.told == std::vector<std::string>{donationAddress});
}

#include "app/Version.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"
#include "ui/WinInfos.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string donationPage = DONATION_PAGE; // of the build's setting

// The next start of a user who hasn't given yet.
void StartWithPrompt(TestWorld& world) {
    world.files.AddFile("/home/user/.config/Tessarolyne Prefs.txt",
        "Date Launch :@: 2026-11-21 12:00:00\nAuto Check Update :@: True\n");
    world.program->Start();
}

} // namespace

TEST_CASE("The first launch gives the hint, then the about window, and neither prompt nor check") {
    TestWorld world(TestWorld::Launch::First);
    world.dialogs.Expect(DialogButton::Action, [&] { CHECK(world.Main().Visible()); });
    world.loop.WhileModal([&] {
        WinInfos& about = world.program->winInfos();
        CHECK(about.TexteInfo.Text().starts_with(Localisation::Infos_Texte()));
        CHECK_FALSE(about.BevButtDejDon.Visible());
        about.BoutonOk.UserPressed();
    });
    world.program->Start();
    CHECK(world.dialogs.asked.at(0).message == Localisation::Txt_SiVsVoulezConservNbPrem());
    CHECK(world.stage.Count<WinInfos>() == 1);
    CHECK(world.program->app.initProg);
    CHECK(world.program->fncts.DrapMenu);
    CHECK(world.http.requests.empty());
}

TEST_CASE("Until the user has given, each start asks for a donation with a title that stands out") {
    TestWorld world(TestWorld::Launch::NotYet);
    world.loop.WhileModal([&] {
        WinInfos& about = world.program->winInfos();
        const std::string title = "Faire un don…";
        CHECK(about.TexteInfo.Text() == title + "\n\n" + Localisation::Infos_Text_Don());
        REQUIRE(about.TexteInfo.Styles().size() == 1);
        const TextStyle& style = about.TexteInfo.Styles()[0];
        CHECK(style.Start == 0);
        CHECK(style.Length == 13);
        CHECK(style.Bold);
        CHECK(style.TextSize == about.TexteInfo.TextSize() + 2);
        CHECK(about.BevButtDejDon.Visible());
        CHECK_FALSE(world.program->app.initProg);
        about.BoutonOk.UserPressed();
    });
    StartWithPrompt(world);
    CHECK_FALSE(world.program->app.DejaDonne);
    CHECK(world.program->fncts.DrapMenu);
    CHECK(world.http.requests.size() == 1);
    world.program->app.RequestQuit();
    world.loop.Advance(100);
    const std::string& saved = world.files.entries["/home/user/.config/Tessarolyne Prefs.txt"].content;
    CHECK(saved.starts_with("Date Launch :@: 2026-11-22 12:00:00\n")); // this launch, not the one before
    CHECK(saved.find("Don 03 :@: False") != std::string::npos);
}

TEST_CASE("Who has given, or says so, isn't asked again, whatever the browser does") {
    TestWorld world(TestWorld::Launch::NotYet);
    SUBCASE("says so") {
        world.loop.WhileModal([&] { world.program->winInfos().BevButtDejDon.UserPressed(); });
        StartWithPrompt(world);
        CHECK(world.desktop.opened.empty());
    }
    SUBCASE("gives, with no browser") {
        world.desktop.takesAddresses = false;
        world.dialogs.ExpectTell();
        world.loop.WhileModal([&] { world.program->winInfos().BevButtDon.UserPressed(); });
        StartWithPrompt(world);
        CHECK(world.dialogs.told.at(0) == donationPage);
    }
    CHECK(world.program->app.DejaDonne);
    world.program->app.RequestQuit();
    world.loop.Advance(100);
    CHECK(world.files.entries["/home/user/.config/Tessarolyne Prefs.txt"].content.find("Don 03 :@: True") !=
          std::string::npos);
}

TEST_CASE("A quit during the donation prompt goes through and sends no request") {
    TestWorld world(TestWorld::Launch::NotYet);
    world.loop.WhileModal([&] { world.program->app.RequestQuit(); });
    StartWithPrompt(world);
    CHECK(world.loop.ExitCode() == 0);
    CHECK(world.http.requests.empty());
}

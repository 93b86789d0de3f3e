#include "app/Version.h"
#include "platform/MenuBar.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"
#include "ui/WinInfos.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string donationPage = DONATION_PAGE; // of the build's setting

// A start of a user who hasn't given yet, with what happens while the prompt is up.
struct Prompted : TestWorld {
    explicit Prompted(const std::function<void(Prompted&, WinInfos&)>& meanwhile)
        : TestWorld(Launch::NotYet) {
        files.AddFile(preferencesFile, "Date Launch :@: 2026-11-21 12:00:00\nAuto Check Update :@: True\n");
        loop.WhileModal([this, meanwhile] { meanwhile(*this, program->winInfos()); });
        program->Start();
    }
    // Whether the next start finds these settings.
    bool Saves(const std::string& settings) {
        program->app.RequestQuit();
        loop.Advance(100);
        return HasSaved(settings);
    }
};

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
    CHECK(world.program->app.initProg);
    CHECK(world.program->fncts.DrapMenu);
    CHECK(world.http.requests.empty());
}

TEST_CASE("Until the user has given, each start asks for a donation") {
    Prompted world([](Prompted& self, WinInfos& about) {
        const std::string title = "Faire un don…";
        CHECK(about.TexteInfo.Text() == title + "\n\n" + Localisation::Infos_Text_Don());
        CHECK_FALSE(self.program->app.initProg);
        about.BoutonOk.UserPressed();
    });
    CHECK(world.program->fncts.DrapMenu);
    CHECK(world.http.requests.size() == 1);
    // This launch, not the one before.
    CHECK(world.Saves("Date Launch :@: 2026-11-22 12:00:00\nDeja Envoye Don 03 :@: False\n"));
}

TEST_CASE("Who has given, or says so, isn't asked again, whatever the browser does") {
    enum { Says, Gives, GivesByMenu };
    for (const int how : {Says, Gives, GivesByMenu}) {
        CAPTURE(how);
        Prompted world([&](Prompted& self, WinInfos& about) {
            self.desktop.takesAddresses = false;
            if (how != Says) {
                self.dialogs.ExpectTell();
            }
            (how == Gives ? about.BevButtDon : about.BevButtDejDon).UserPressed();
            self.program->app.DejaDonne = how != GivesByMenu;
        });
        if (how == GivesByMenu) {
            world.program->app.GetMenuBar()->Find("AppleDon")->UserChose(world.program->app);
        }
        CHECK(world.dialogs.told == std::vector<std::string>(how == Says ? 0 : 1, donationPage));
        CHECK(world.Saves("Don 03 :@: True"));
    }
}

#include "app/Version.h"
#include "platform/MenuBar.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"
#include "ui/WinPrefs.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string versionFile = versionFileAddress;
const std::string here = std::string("v.") + shortVersion;
const std::string download = "http://download.example/page.html?a=1";
const std::string history = versionFile.substr(0, versionFile.size() - 6) + "_AffV.html";
const std::string notes = "-- One -- Two\r\rOlder versions\r-- Three";

std::string File(const std::string& version, const std::string& address = download) {
    return "Release Notes of Tessarolyne\r" + address + "\r" + version + "\r" + notes;
}

void ChooseCheck(TestWorld& world) {
    world.program->app.GetMenuBar()->Find("AppleVMaJ")->UserChose(world.program->app);
}

void Answer(TestWorld& world, const std::string& content, int error = 0) {
    REQUIRE_FALSE(world.http.requests.empty());
    const auto request = world.http.requests.front();
    world.http.requests.erase(world.http.requests.begin());
    request.reply(HttpReply{request.url, error == 0 ? 200 : 0, "", content, error});
}

// A start of the program by a user whose last start was at that time.
struct Launch {
    explicit Launch(const std::string& lastLaunch, bool allowed = true) : world(TestWorld::Launch::NotYet) {
        world.files.AddFile("/home/user/.config/Tessarolyne Prefs.txt",
            "Date Launch :@: " + lastLaunch + "\nDeja Envoye Don 03 :@: True\nAuto Check Update :@: " +
                (allowed ? "True" : "False") + "\n");
        world.program->Start();
    }
    TestWorld world;
};

const std::string yesterday = "2026-11-21 23:59:59"; // the test world's clock stands at noon of the 22nd

} // namespace

TEST_CASE("A check from the menu tells what the server has, and opens only what was pressed") {
    const std::string isNew = Localisation::Txt_Ver_Nouv();
    const std::string isSame = Localisation::Txt_Ver_a_jour();
    const std::string isBad = Localisation::Txt_Ver_MaJ_impo();
    const std::string news = "\n• One\r• Two";
    constexpr auto site = DialogButton::Action;
    constexpr auto close = DialogButton::Cancel;
    constexpr auto older = DialogButton::Alternate;
    struct Case {
        std::string what;
        std::string content;
        std::string message;
        std::string explanation;
        DialogButton press;
        std::string opened; // empty: nothing
        std::string told;   // an address that is shown instead
    };
    const Case cases[] = {
        {"new", File("v.9.9"), isNew, "v.9.9" + news, site, download, ""},
        {"new, history", File("v.9.9"), isNew, "v.9.9" + news, older, history, ""},
        {"older", File("v.0.1"), isNew, "v.0.1" + news, close, "", ""},
        {"this one and a blank", File(here + " "), isNew, here + " " + news, site, download, ""},
        {"this one", File(here), isSame, here, DialogButton::Action, "", ""},
        {"this one, history", File(here), isSame, here, DialogButton::Cancel, history, ""},
        {"no notes", "Release Notes\r" + download + "\rv.2", isNew, "v.2\n", site, download, ""},
        {"older versions in the notes only", File("v.9.9 Older versions"), isNew, "v.9.9 \n", close, "", ""},
        {"a secure scheme", File("v.9.9", "https://download.example"), isBad, "", site, "", ""},
        {"truncated", "Release Notes\r" + download, isBad, "", site, "", ""},
        {"no host", File("v.9.9", "http://"), isNew, "v.9.9" + news, site, "", "http://"},
    };
    for (const Case& c : cases) {
        CAPTURE(c.what);
        TestWorld world;
        ChooseCheck(world);
        CHECK(world.http.requests.at(0).url == std::string(authorSite) + "/prg/Xojo/Tessarolyne_V.txt");
        world.dialogs.Expect(c.press, [&] { CHECK_FALSE(world.program->fncts.DrapMenu); });
        if (!c.told.empty()) {
            world.dialogs.ExpectTell();
        }
        Answer(world, c.content);
        CHECK(world.dialogs.asked.empty()); // not inside the socket's event
        world.loop.Advance(1);
        const MessageDialog& dialog = world.dialogs.asked.at(0);
        CHECK(dialog.message == c.message);
        CHECK(dialog.explanation == c.explanation);
        CHECK(dialog.icon == (c.message == isBad ? 1 : 0));
        CHECK(world.sounds.beeps == (c.message == isBad ? 1 : 0));
        CHECK(
            world.desktop.opened == (c.opened.empty() ? std::vector<std::string>() : std::vector{c.opened}));
        CHECK(world.dialogs.told == (c.told.empty() ? std::vector<std::string>() : std::vector{c.told}));
        CHECK(world.program->fncts.TexteVerMaJ.empty());
        CHECK(world.program->fncts.DrapMenu);
    }
}

TEST_CASE("Each button that opens an address shows it, unless it would not be opened") {
    TestWorld world;
    for (const char* address : {"http://download.example/page.html?a=1", "http://a@b"}) {
        ChooseCheck(world);
        world.dialogs.Expect(DialogButton::Cancel);
        Answer(world, File("v.9.9", address));
        world.loop.Advance(1);
        CHECK(world.dialogs.asked.back().actionHelpTag == (address == download ? download : ""));
        CHECK(world.dialogs.asked.back().alternateHelpTag == history);
    }
}

TEST_CASE("The first start of a calendar day asks the server once, if that is allowed") {
    CHECK(Launch(yesterday).world.http.requests.size() == 1);
    CHECK(Launch("2026-11-22 00:00:00").world.http.requests.empty()); // today
    CHECK(Launch("2026-11-23 00:00:00").world.http.requests.empty()); // a clock that was set back
    Launch notAllowed(yesterday, false);
    CHECK(notAllowed.world.http.requests.empty());
    CHECK(notAllowed.world.program->fncts.AlertVerAjour);
}

TEST_CASE("A check by itself speaks only of another version, and the next one reports all") {
    Launch launch(yesterday);
    TestWorld& world = launch.world;
    CHECK_FALSE(world.program->fncts.AlertVerAjour);
    SUBCASE("another version") {
        world.dialogs.Expect(DialogButton::Cancel);
        Answer(world, File("v.9.9"));
        world.loop.Advance(1);
        CHECK(world.dialogs.asked.at(0).message == Localisation::Txt_Ver_Nouv());
        CHECK(world.sounds.beeps == 1);
    }
    SUBCASE("the same version") {
        Answer(world, File(here));
    }
    SUBCASE("no connection") {
        Answer(world, "", 103);
    }
    world.loop.Advance(1);
    CHECK(world.desktop.opened.empty());
    CHECK(world.program->fncts.TexteVerMaJ.empty());
    const auto before = world.dialogs.asked.size();
    CHECK(world.sounds.beeps == static_cast<int>(before));

    ChooseCheck(world);
    world.dialogs.Expect(DialogButton::Action);
    Answer(world, File(here));
    world.loop.Advance(1);
    CHECK(world.dialogs.asked.size() == before + 1);
    CHECK(world.dialogs.asked.back().message == Localisation::Txt_Ver_a_jour());
}

TEST_CASE("A reply that comes while the program is busy waits, looked at once a second, and is told once") {
    TestWorld world;
    Timer& timer = world.Main().TimerVerMaJ;
    ChooseCheck(world);
    world.loop.WhileModal([&] {
        Answer(world, File(here));
        world.loop.Advance(3500);
        CHECK(world.dialogs.asked.empty());
        CHECK(timer.Period == 1000);
        CHECK(timer.Mode == 1);
        world.program->winPrefs().PushButtAnnuler.UserPressed();
    });
    world.program->winPrefs().ShowModal();
    world.dialogs.Expect(DialogButton::Action, [&] { world.loop.Advance(2500); });
    world.loop.Advance(1000);
    CHECK(world.dialogs.asked.size() == 1);
    CHECK(timer.Period == 1);
    CHECK(timer.Mode == 0);
    world.loop.Advance(5000);
    CHECK(world.dialogs.asked.size() == 1);
}

TEST_CASE("A check from the menu shows that it is under way once it takes longer than a moment") {
    TestWorld world;
    ProgressWheel& wheel = world.Main().ProgressWheel1;
    ChooseCheck(world);
    world.loop.Advance(499);
    CHECK_FALSE(wheel.Visible());
    world.loop.Advance(1);
    CHECK(wheel.Visible());
    CHECK(wheel.AccessibleName() == "Vérifier les mises à jour…");
    ChooseCheck(world);
    world.dialogs.Expect(DialogButton::Action);
    Answer(world, File(here));
    world.loop.Advance(1000);
    CHECK(wheel.Visible()); // for the second one
    world.dialogs.Expect(DialogButton::Action);
    Answer(world, File(here));
    CHECK_FALSE(wheel.Visible());
    world.loop.Advance(1000);
    CHECK_FALSE(wheel.Visible());

    ChooseCheck(world);
    world.dialogs.Expect(DialogButton::Action);
    Answer(world, "", 1);
    world.loop.Advance(1000);
    CHECK_FALSE(wheel.Visible());
}

TEST_CASE("The wheel turns until both the check and the factors are there, whichever comes first") {
    TestWorld world;
    WinMain& window = world.Main();
    ChooseCheck(world);
    world.loop.Advance(500);
    world.Type(window.EditFieldNbre, "6");
    CHECK(window.TxtAreaDecomp1er.Text() == "2 x 3");
    CHECK(window.ProgressWheel1.Visible());
    window.DecompPremDeb(false);
    CHECK(window.ProgressWheel1.AccessibleName() == "Décomposition en Nombres Premiers");
    Answer(world, File(here));
    CHECK(window.ProgressWheel1.Visible());
    world.dialogs.Expect(DialogButton::Action);
    world.Settle();
    CHECK_FALSE(window.ProgressWheel1.Visible());
    world.loop.Advance(1000);
}

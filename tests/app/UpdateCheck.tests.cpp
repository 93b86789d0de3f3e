#include "app/VersionFile.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"
#include "ui/Version.h"
#include "ui/WinPrefs.h"

using namespace tessarolyne;

namespace {

const std::string here = std::string("v.") + shortVersion;
const std::string download = "http://download.example/page.html?a=1";
const std::string history = std::string(authorSite) + "/prg/Xojo/Tessarolyne_AffV.html";

std::string File(const std::string& version, const std::string& address = download) {
    return "Release Notes of Tessarolyne\r" + address + "\r" + version + "\r-- One -- Two\r\rOlder versions";
}

// A start of the program by a user whose last start was at that time; the clock stands at noon of the 22nd.
struct Launch : TestWorld {
    explicit Launch(const std::string& lastLaunch = "2026-11-22 00:00:00", bool allowed = true)
        : TestWorld("Date Launch :@: " + lastLaunch +
                    "\nAuto Check Update :@: " + (allowed ? "True\n" : "False\n")) {
        program->Start();
    }
    void ChooseCheck() { program->app.GetMenuBar()->Find("AppleVMaJ")->UserChose(program->app); }
    void Answer(const std::string& content, int error = 0) {
        const auto request = http.requests.at(0);
        http.requests.erase(http.requests.begin());
        request.reply({content, error});
    }
};

} // namespace

TEST_CASE("A check from the menu tells what the server has, and opens only what was pressed") {
    const std::string isNew = Localisation::Txt_Ver_Nouv();
    const std::string isSame = Localisation::Txt_Ver_a_jour();
    const std::string isBad = Localisation::Txt_Ver_MaJ_impo();
    const std::string news = "\n• One\r• Two";
    const std::string user = "http://a@b";
    using enum DialogButton;
    const struct {
        std::string content, message, explanation;
        DialogButton press;
        std::string opened = {}, told = {}; // an address
    } rows[] = {{File("v.9.9"), isNew, "v.9.9" + news, Alternate, history},
        {File("v.0.1"), isNew, "v.0.1" + news, DialogButton::Cancel},
        {File("v.9.9"), isNew, "v.9.9" + news, None},
        {File(here + " "), isNew, here + " " + news, Action, download}, {File(here), isSame, here, Action},
        {File(here), isSame, here, DialogButton::Cancel, history}, {File(here), isSame, here, None},
        {File("v.9.9", "https://download.example"), isBad, "", Action},
        {File("v.9.9", user), isNew, "v.9.9" + news, Action, "", user}};
    for (const auto& row : rows) {
        CAPTURE(row.content);
        Launch world;
        world.ChooseCheck();
        CHECK(world.http.requests.at(0).url == std::string(authorSite) + "/prg/Xojo/Tessarolyne_V.txt");
        world.dialogs.Expect(row.press, [&] { CHECK_FALSE(world.program->fncts.DrapMenu); });
        if (!row.told.empty()) {
            world.dialogs.ExpectTell();
        }
        world.Answer(row.content);
        CHECK(world.dialogs.asked.empty()); // not inside the socket's event
        world.loop.Advance(1);
        const MessageDialog& dialog = world.dialogs.asked.at(0);
        CHECK(dialog.message == row.message);
        CHECK(dialog.explanation == row.explanation);
        CHECK((dialog.icon == world.sounds.beeps && dialog.icon == (row.message == isBad ? 1 : 0)));
        // A button says where it leads, unless that would not be opened.
        CHECK(dialog.helpTags.action == (row.message == isNew && row.told.empty() ? download : ""));
        CHECK(dialog.helpTags.alternate == (row.message == isNew ? history : ""));
        CHECK(world.desktop.opened == std::vector(row.opened.empty() ? 0 : 1, row.opened));
        CHECK(world.dialogs.told == std::vector(row.told.empty() ? 0 : 1, row.told));
        CHECK(world.program->fncts.DrapMenu);
    }
}

TEST_CASE("The first start of a day asks once, if allowed, and speaks by itself only of another version") {
    CHECK(Launch("2026-11-22 00:00:00").http.requests.empty()); // today
    CHECK(Launch("2026-11-23 00:00:00").http.requests.empty()); // a clock that was set back
    CHECK(Launch("2026-11-21 23:59:59", false).http.requests.empty());
    for (const auto& [content, error, dialogs] :
        {std::tuple(File("v.9.9"), 0, 1), std::tuple(File(here), 0, 0), std::tuple(std::string(), 103, 0),
            std::tuple(std::string("<html>\r"), 0, 0)}) {
        Launch world("2026-11-21 23:59:59");
        CHECK(world.http.requests.size() == 1);
        if (dialogs > 0) {
            world.dialogs.Expect(DialogButton::Cancel);
        }
        world.Answer(content, error);
        world.loop.Advance(2);
        CHECK(world.dialogs.asked.size() == static_cast<std::size_t>(dialogs));
        CHECK(world.sounds.beeps == dialogs);
    }
}

TEST_CASE("A reply that comes while the program is busy waits, looked at once a second, and is told once") {
    Launch world;
    world.ChooseCheck();
    world.loop.WhileModal([&] {
        world.Answer(File(here));
        world.loop.Advance(3500);
        CHECK(world.dialogs.asked.empty());
        world.program->winPrefs().PushButtAnnuler.UserPressed();
    });
    world.program->winPrefs().ShowModal();
    world.dialogs.Expect(DialogButton::Action, [&] { world.loop.Advance(2500); });
    world.loop.Advance(1000);
    CHECK(world.dialogs.asked.size() == 1);
    world.loop.Advance(5000);
    CHECK(world.dialogs.asked.size() == 1);
}

TEST_CASE("A check from the menu that lasts half a second turns the wheel until the last answer") {
    Launch world;
    const ProgressWheel& wheel = world.Main().ProgressWheel1;
    world.ChooseCheck();
    world.ChooseCheck();
    world.loop.Advance(499);
    CHECK_FALSE(wheel.Visible());
    world.loop.Advance(1);
    CHECK(wheel.Visible());
    world.Answer(File(here));
    CHECK(wheel.Visible());
    world.Answer(File(here));
    CHECK_FALSE(wheel.Visible());
    world.dialogs.Expect(DialogButton::Action);
    world.loop.Advance(1000); // and isn't turned again
    CHECK_FALSE(wheel.Visible());
}

TEST_CASE("Notes end before the older versions and without empty lines, and have bullets for hyphens") {
    const char* const rows[][2] = {{"-- One -- Two\rthree", "• One\r• Two\rthree"}, {"\r\r", ""},
        {"First -- One -- Two", "First\r• One\r• Two"}, {"older versions", "older versions"},
        {"a--b --c-- d", "a--b --c• d"}, // only one of those without a blank before it
        {"One\r\r\rOlder versions\r-- Old", "One"}};
    for (const auto& [text, notes] : rows) {
        CHECK(ReadVersionFile(std::string("url\rRelease Notes\rhttp://a\rv.1\r") + text)->notes == notes);
    }
    CHECK(HistoryPage("http://host/prg/Tessarolyne_V.txt") == "http://host/prg/Tessarolyne_AffV.html");
    CHECK(HistoryPage("ab") == "_AffV.html");
}

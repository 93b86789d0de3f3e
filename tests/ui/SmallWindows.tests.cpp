#include "app/Version.h"
#include "platform/MenuBar.h"
#include "support/TestWorld.h"
#include "ui/WinInfos.h"
#include "ui/WinPrefs.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

bool Overlap(const Control& a, const Control& b) {
    return a.Left() < b.Left() + b.Width() && b.Left() < a.Left() + a.Width() &&
           a.Top() < b.Top() + b.Height() && b.Top() < a.Top() + a.Height();
}

} // namespace

TEST_CASE("Every control of the about window is whole and free at its own and at its smallest size") {
    TestWorld world;
    WinInfos& about = world.program->winInfos();
    for (const int size : {0, 300}) {
        if (size != 0) {
            about.UserResized(about.Frame.minWidth, about.Frame.minHeight);
            CHECK(about.Width() == size);
        }
        for (const Control* control : about.Controls()) {
            CAPTURE(control->Name);
            const bool overlay = control->Name.starts_with("LabBlockUI");
            CHECK((overlay || std::min(control->Width(), control->Height()) >= 18));
            CHECK((overlay || std::min(control->Left(), control->Top()) >= 0));
            CHECK(control->Left() + control->Width() <= about.Width());
            CHECK(control->Top() + control->Height() <= about.Height());
            for (const Control* other : about.Controls()) {
                CHECK((overlay || other == control || other->Name.starts_with("LabBlockUI") ||
                       !Overlap(*control, *other)));
            }
        }
    }
}

TEST_CASE("A link opens what it shows when a press begins and ends on it") {
    const std::string letter = "?Subject=A%20propos%20de%20Tessarolyne%20" + std::string(shortVersion) +
                               "%20Mac%20INTEL%20-%20Cocoa%2064-bit%20%282018r2%29";
    TestWorld world;
    WinInfos& about = world.program->winInfos();
    const auto check = [&](auto& link, const std::string& opened) {
        CAPTURE(link.Name);
        world.desktop.opened.clear();
        link.MouseEnter();
        CHECK(about.MouseCursor() == Cursor::Finger);
        link.MouseUp(1, 1); // a press that began elsewhere
        for (const auto& [x, y] : {std::pair(-1, 1), std::pair(1, -1), std::pair(link.Width() + 1, 1),
                 std::pair(1, link.Height() + 1)}) {
            about.MouseCursor = Cursor::Finger;
            CHECK(link.MouseDown(1, 1));
            link.MouseUp(x, y);
            CHECK(about.MouseCursor() == Cursor::Standard);
            link.MouseUp(1, 1); // it has been taken back
        }
        CHECK(world.desktop.opened.empty());
        for (const auto& [x, y] : {std::pair(0, 0), std::pair(link.Width(), link.Height())}) {
            link.MouseDown(x, y);
            link.MouseUp(x, y);
        }
        CHECK(world.desktop.opened == std::vector{opened, opened});
        link.Enabled = false;
        link.MouseEnter();
        CHECK(about.MouseCursor() == Cursor::Standard);
    };
    check(about.Web1, authorSite);
    check(about.Web2, authorSite2);
    about.Email1.Text = "a@b.example";
    check(about.Email1, "mailto:a%40b.example" + letter);
    about.Email2.Text = "c&d@b.example";
    check(about.Email2, "mailto:c%26d%40b.example" + letter);
    check(about.CanvDevLogo, buildToolSite);
}

TEST_CASE("A small window holds the commands off until one of its own buttons ends it") {
    TestWorld world;
    App& app = world.program->app;
    const auto hold = [&](auto& window, PushButton& button) {
        const int beeps = world.sounds.beeps;
        CHECK_FALSE(world.program->fncts.DrapMenu);
        window.UserClosed();
        world.Main().UserClosed();
        CHECK(world.sounds.beeps == beeps + 2);
        for (const char* item : {"AppleAPropos", "AideAide", "AppleDon", "ApplePrefs"}) {
            app.GetMenuBar()->Find(item)->UserChose(app);
        }
        button.UserPressed();
        CHECK(window.IsClosed());
    };
    world.loop.WhileModal([&] { hold(world.program->winInfos(), world.program->winInfos().BoutonOk); });
    CHECK(world.Main().AppleAPropos_Action());
    world.loop.WhileModal([&] { hold(world.program->winPrefs(), world.program->winPrefs().PushButtOk); });
    CHECK(world.Main().ApplePrefs_Action());
    CHECK(world.program->fncts.DrapMenu);
    CHECK(world.desktop.opened.empty());
    CHECK(world.stage.Count<WinInfos>() == 1);
    world.loop.Advance(1);
    CHECK(app.Windows().size() == 1); // let go
}

TEST_CASE("The preferences window opens over the main window and within the first screen's width") {
    const int rows[][3] = {
        {100, 1280, 175}, {-300, 1280, 0}, {805, 1280, 880}, {804, 1280, 879}, {100, 300, -100}};
    for (const auto& [mainLeft, screenWidth, left] : rows) {
        CAPTURE(mainLeft);
        TestWorld world;
        world.stage.size.Width = screenWidth;
        world.Main().Left = mainLeft;
        world.Main().Top = 75;
        CHECK(world.program->winPrefs().Left() == left);
        CHECK(world.program->winPrefs().Top() == 105);
    }
}

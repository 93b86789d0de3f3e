#include "app/Version.h"
#include "support/TestWorld.h"
#include "ui/WinInfos.h"
#include "ui/WinPrefs.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

TEST_CASE("Every control of the about window is whole and free at its own and at its smallest size") {
    TestWorld world;
    WinInfos& about = world.program->winInfos();
    const auto overlap = [](const Control& a, const Control& b) {
        return a.Left() < b.Left() + b.Width() && b.Left() < a.Left() + a.Width() &&
               a.Top() < b.Top() + b.Height() && b.Top() < a.Top() + a.Height();
    };
    const auto isOverlay = [](const Control& c) { return c.Name.starts_with("LabBlockUI"); };
    for (const bool smallest : {false, true}) {
        if (smallest) {
            about.UserResized(about.Frame.minWidth, about.Frame.minHeight);
        }
        for (const Control* control : about.Controls()) {
            CAPTURE(control->Name);
            CHECK(control->Left() + control->Width() <= about.Width());
            CHECK(control->Top() + control->Height() <= about.Height());
            CHECK((isOverlay(*control) || std::min(control->Width(), control->Height()) >= 18));
            CHECK((isOverlay(*control) || std::min(control->Left(), control->Top()) >= 0));
            for (const Control* other : about.Controls()) {
                CHECK((other == control || isOverlay(*control) || isOverlay(*other) ||
                       !overlap(*control, *other)));
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
        const int right = link.Width();
        const int bottom = link.Height();
        for (const auto& [x, y] :
            {std::pair(-1, 1), std::pair(1, -1), std::pair(right + 1, 1), std::pair(1, bottom + 1)}) {
            link.MouseDown(1, 1);
            link.MouseUp(x, y);
            link.MouseUp(1, 1); // it has been taken back
        }
        CHECK(about.MouseCursor() == Cursor::Standard);
        CHECK(world.desktop.opened.empty());
        for (const auto& [x, y] : {std::pair(0, 0), std::pair(right, bottom)}) {
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
    const auto hold = [&](auto& window, PushButton& button) {
        const int beeps = world.sounds.beeps;
        CHECK_FALSE(world.program->fncts.DrapMenu);
        window.UserClosed();
        world.Main().UserClosed();
        CHECK(world.sounds.beeps == beeps + 2);
        button.UserPressed();
        CHECK(window.IsClosed());
    };
    world.loop.WhileModal([&] { hold(world.program->winInfos(), world.program->winInfos().BoutonOk); });
    CHECK(world.Main().AppleAPropos_Action());
    world.loop.WhileModal([&] { hold(world.program->winPrefs(), world.program->winPrefs().PushButtOk); });
    CHECK(world.Main().ApplePrefs_Action());
    CHECK(world.program->fncts.DrapMenu);
    world.loop.Advance(1);
    CHECK(world.program->app.Windows().size() == 1); // let go
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

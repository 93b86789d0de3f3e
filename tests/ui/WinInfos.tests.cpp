#include "ui/WinInfos.h"
#include "app/Version.h"
#include "platform/MenuBar.h"
#include "support/TestWorld.h"
#include "ui/Localisation.h"

#include <doctest/doctest.h>

#include <algorithm>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

bool Overlap(const Control& a, const Control& b) {
    return a.Left() < b.Left() + b.Width() && b.Left() < a.Left() + a.Width() &&
           a.Top() < b.Top() + b.Height() && b.Top() < a.Top() + a.Height();
}

// Every control whole, inside the window, and none over another.
void CheckLayout(const Window& window) {
    for (const Control* control : window.Controls()) {
        if (control->Name.starts_with("LabBlockUI")) {
            continue;
        }
        CAPTURE(control->Name);
        CHECK(control->Width() >= 18);
        CHECK(control->Height() >= 18);
        CHECK(control->Left() >= 0);
        CHECK(control->Top() >= 0);
        CHECK(control->Left() + control->Width() <= window.Width());
        CHECK(control->Top() + control->Height() <= window.Height());
        for (const Control* other : window.Controls()) {
            if (other != control && !other->Name.starts_with("LabBlockUI")) {
                CAPTURE(other->Name);
                CHECK_FALSE(Overlap(*control, *other));
            }
        }
    }
}

const std::string letter = "?Subject=A%20propos%20de%20Tessarolyne%20" + std::string(shortVersion) +
                           "%20Mac%20INTEL%20-%20Cocoa%2064-bit%20%282018r2%29";

} // namespace

TEST_CASE("The about window shows the manual, the licence, the version and two addresses") {
    TestWorld world;
    WinInfos& about = world.program->winInfos();
    CHECK(about.StaticTextVersion.Text() == shortVersion);
    const std::string text = about.TexteInfo.Text;
    CHECK(text.starts_with(Localisation::Infos_Texte() + "\n \n \n"));
    CHECK(text.find("MIT License\n\nCopyright (c)") != text.npos);
    CHECK(text.find("of this software and associated") != text.npos); // lines wrap by themselves
    CHECK_FALSE(about.Web1.Visible());
    CHECK_FALSE(about.Email1.Visible());
    CHECK(about.Web2.Text() == authorSite2);
    CHECK(about.Email2.Text() == authorEmail2);
}

TEST_CASE("No control of the about window covers another at its own and at its smallest size") {
    TestWorld world;
    WinInfos& about = world.program->winInfos();
    CheckLayout(about);
    about.UserResized(about.Frame.minWidth, about.Frame.minHeight);
    CHECK(about.Width() == 300);
    CheckLayout(about);
}

TEST_CASE("A link opens what it shows when a press begins and ends on it") {
    TestWorld world;
    WinInfos& about = world.program->winInfos();
    const auto check = [&](auto& link, bool& pressed, const std::string& opened) {
        CAPTURE(link.Name);
        world.desktop.opened.clear();
        link.MouseEnter();
        CHECK(about.MouseCursor() == Cursor::Finger);
        link.MouseExit();
        CHECK(about.MouseCursor() == Cursor::Standard);
        link.MouseUp(1, 1); // a press that began elsewhere
        CHECK(world.desktop.opened.empty());
        for (const auto& [x, y] : {std::pair(-1, 1), std::pair(1, -1), std::pair(link.Width() + 1, 1),
                 std::pair(1, link.Height() + 1)}) {
            about.MouseCursor = Cursor::Finger;
            CHECK(link.MouseDown(1, 1));
            CHECK(pressed);
            link.MouseUp(x, y);
            CHECK_FALSE(pressed);
            CHECK(about.MouseCursor() == Cursor::Standard);
            CHECK(world.desktop.opened.empty());
        }
        CHECK(link.TakesFocus());
        link.MouseDown(0, 0);
        link.MouseUp(0, 0);
        link.MouseDown(3, 3);
        link.MouseUp(link.Width(), link.Height());
        CHECK(world.desktop.opened == std::vector{opened, opened});
        about.MouseCursor = Cursor::Standard;
        link.Enabled = false;
        link.MouseEnter();
        CHECK(about.MouseCursor() == Cursor::Standard);
    };
    check(about.Web1, about.OnWeb1, authorSite);
    check(about.Web2, about.OnWeb2, authorSite2);
    about.Email1.Text = "a@b.example";
    check(about.Email1, about.OnEmail1, "mailto:a%40b.example" + letter);
    about.Email2.Text = "c&d@b.example";
    check(about.Email2, about.OnEmail2, "mailto:c%26d%40b.example" + letter);
    check(about.CanvDevLogo, about.OnDevLogo, buildToolSite);
}

TEST_CASE("The about window holds the commands off until one of its own buttons ends it") {
    TestWorld world;
    App& app = world.program->app;
    world.loop.WhileModal([&] {
        WinInfos& about = world.program->winInfos();
        CHECK_FALSE(world.program->fncts.DrapMenu);
        about.UserClosed();
        CHECK(world.sounds.beeps == 1);
        CHECK_FALSE(about.IsClosed());
        world.Main().UserClosed();
        CHECK(world.sounds.beeps == 2);
        for (const char* item : {"AppleAPropos", "AideAide", "AppleDon", "ApplePrefs"}) {
            app.GetMenuBar()->Find(item)->UserChose(app);
        }
        about.BoutonOk.UserPressed();
        CHECK(about.IsClosed());
    });
    CHECK(world.Main().AppleAPropos_Action());
    CHECK(world.program->fncts.DrapMenu);
    CHECK(world.desktop.opened.empty());
    CHECK(world.stage.Count<WinInfos>() == 1);
    world.loop.Advance(1);
    CHECK(app.Windows().size() == 1); // let go
    world.loop.WhileModal([&] { world.program->winInfos().FermeFentr(); });
    app.GetMenuBar()->Find("AppleAPropos")->UserChose(app);
    CHECK(world.stage.Count<WinInfos>() == 2);
}

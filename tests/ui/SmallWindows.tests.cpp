#include "app/Version.h"
#include "platform/MenuBar.h"
#include "platform/Text.h"
#include "support/TestWorld.h"
#include "ui/WinInfos.h"
#include "ui/WinPrefs.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

TEST_CASE("A link opens what it shows when a press begins and ends on it") {
    const std::string build = Fncts::TypeCompil();
#ifdef __linux__
    CHECK((build.starts_with("Linux ") && build.find(sizeof(void*) == 8 ? " 64-bit (" : " 32-bit (") < 40));
#endif
    const std::string letter =
        "?Subject=A%20propos%20de%20Tessarolyne%20" + EncodeURLComponent(shortVersion + (" " + build));
    TestWorld world;
    WinInfos& about = world.program->winInfos();
    const auto check = [&](auto& link, const std::string& opened) {
        CAPTURE(link.Name);
        world.desktop.opened.clear();
        link.MouseUp(1, 1); // a press that began elsewhere
        link.MouseDown(1, 1);
        link.MouseUp(link.Width() + 1, 1);
        link.MouseUp(1, 1); // it has been taken back
        CHECK(world.desktop.opened.empty());
        link.MouseDown(0, 0);
        link.MouseUp(link.Width(), link.Height());
        CHECK(world.desktop.opened == std::vector{opened});
    };
    check(about.Web1, authorSite);
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
    const auto choose = [&](const char* command) {
        world.program->app.GetMenuBar()->Find(command)->UserChose(world.program->app);
    };
    world.loop.WhileModal([&] { hold(world.program->winInfos(), world.program->winInfos().BoutonOk); });
    choose("AppleAPropos");
    world.loop.WhileModal([&] { hold(world.program->winPrefs(), world.program->winPrefs().PushButtOk); });
    choose("ApplePrefs");
    CHECK(world.program->fncts.DrapMenu);
    world.loop.Advance(1);
    CHECK(world.program->app.Windows().size() == 1); // let go
}

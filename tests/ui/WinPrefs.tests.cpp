#include "ui/WinPrefs.h"
#include "support/TestWorld.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

TEST_CASE("The preferences window changes the setting only by its Ok button") {
    for (const bool before : {false, true}) {
        TestWorld world;
        world.program->app.AutoCheckUpdt = before;
        const auto edit = [&](PushButton WinPrefs::*button) {
            world.loop.WhileModal([&world, button] {
                WinPrefs& prefs = world.program->winPrefs();
                CHECK(prefs.CheckBoxAutoUpdt.Value() == world.program->app.AutoCheckUpdt);
                CHECK_FALSE(world.program->fncts.DrapMenu);
                prefs.CheckBoxAutoUpdt.UserPressed();
                prefs.UserClosed();
                CHECK_FALSE(prefs.IsClosed());
                (prefs.*button).UserPressed();
                CHECK(prefs.IsClosed());
            });
            CHECK(world.Main().ApplePrefs_Action());
            CHECK(world.program->fncts.DrapMenu);
        };
        edit(&WinPrefs::PushButtAnnuler);
        CHECK(world.program->app.AutoCheckUpdt == before);
        edit(&WinPrefs::PushButtOk);
        CHECK(world.program->app.AutoCheckUpdt == !before);
        CHECK(world.sounds.beeps == 2);
    }
}

TEST_CASE("The preferences window opens over the main window and within the first screen's width") {
    struct Case {
        int mainLeft;
        int screenWidth;
        int left;
    };
    for (const Case& c : {Case{100, 1280, 175}, Case{-300, 1280, 0}, Case{1200, 1280, 880},
             Case{805, 1280, 880}, Case{804, 1280, 879}, Case{100, 300, -100}}) {
        CAPTURE(c.mainLeft);
        TestWorld world;
        world.stage.size.Width = c.screenWidth;
        world.Main().Left = c.mainLeft;
        world.Main().Top = 75;
        CHECK(world.program->winPrefs().Left() == c.left);
        CHECK(world.program->winPrefs().Top() == 105);
    }
}

#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

TEST_CASE("A question freezes the commands while it is up and gives everything back") {
    TestWorld world;
    Fncts& fncts = world.program->fncts;
    App& app = world.program->app;
    for (const bool found : {true, false}) {
        fncts.DrapMenu = found;
        world.dialogs.Expect(DialogButton::Alternate, [&] {
            CHECK_FALSE(fncts.DrapMenu);
            CHECK(fncts.DrapDiagBox);
            CHECK(app.MouseCursor == Cursor::Standard);
        });
        CHECK(fncts.MyDialogBox("", "why", "Ok", "", "Other", 1, nullptr) == 3);
        CHECK(fncts.DrapMenu == found);
        CHECK_FALSE(fncts.DrapDiagBox);
        CHECK(app.MouseCursor == Cursor::None);
        CHECK(world.dialogs.asked.back().message == " ");
        CHECK(world.dialogs.asked.back().sheetOf == nullptr);
    }
}

TEST_CASE("A calculation that began while a question was up keeps the commands frozen behind it") {
    TestWorld world;
    WinMain& window = world.Main();
    window.NbresPremCalc(100, false);
    window.EditFieldNbre.Text = "6";
    world.dialogs.Expect(DialogButton::Action, [&] { window.DecompPremDeb(false); });
    world.program->fncts.MyDialogBox("m", "", "Ok", "", "", 0, nullptr);
    CHECK_FALSE(world.program->fncts.DrapMenu);
    world.Settle();
    CHECK(world.program->fncts.DrapMenu);
}

TEST_CASE("Beeps of a series stand ten ticks apart") {
    TestWorld world;
    Fncts& fncts = world.program->fncts;
    const auto start = world.loop.Ticks();
    fncts.BeepNbT(3);
    CHECK(world.sounds.beeps == 3);
    CHECK(world.loop.Ticks() - start == 20);
    fncts.BeepNbT(1);
    CHECK(world.loop.Ticks() - start == 20);
    fncts.BeepNbT(-1);
    CHECK(world.sounds.beeps == 4);
}

TEST_CASE("A sound that is playing sounds once more beside itself, and a wait ends with the one waited for") {
    TestWorld world;
    Fncts& fncts = world.program->fncts;
    fncts.PlayT(fncts.Zoum, false);
    CHECK(fncts.Zoum.IsPlaying());
    const auto start = world.loop.Milliseconds();
    fncts.PlayT(fncts.Zoum, true);
    CHECK(world.sounds.played.size() == 2);
    CHECK(world.loop.Milliseconds() - start == 100);
}

TEST_CASE("A chooser begins where its item stands, and suggests what fits it") {
    TestWorld world;
    Fncts& fncts = world.program->fncts;
    world.files.AddFile("/home/user/primes.txt", "");
    const auto file = FolderItem::FromNativePath(world.files, "/home/user/primes.txt");
    const auto folder = FolderItem::FromNativePath(world.files, "/home/user/Documents");
    const auto save = [&](const std::optional<FolderItem>& start) {
        world.dialogs.ExpectFile(std::nullopt);
        CHECK_FALSE(fncts.MyDialogSave(start, "prompt", "text", "new.txt", nullptr).has_value());
        return world.dialogs.fileDialogs.back();
    };
    CHECK(save(file).suggestedName == "primes.txt");
    CHECK(save(file).initialFolder->NativePath() == "/home/user");
    CHECK(save(folder).suggestedName == "new.txt");
    CHECK(save(folder).initialFolder == folder);
    CHECK(save(std::nullopt).initialFolder == folder);
    CHECK(save(std::nullopt).filterExtension == ".txt");
    const FileDialog onVolume = save(FolderItem::FromNativePath(world.files, "/"));
    CHECK(onVolume.initialFolder->NativePath() == "/"); // a folder, though without a parent

    world.files.AddLink("/home/user/alias.txt", "/home/user/primes.txt");
    const auto alias = FolderItem::FromNativePath(world.files, "/home/user/alias.txt");
    world.dialogs.ExpectFile(alias);
    CHECK(fncts.MyDialogLoad(std::nullopt, "prompt", "text", nullptr) == alias);
}

TEST_CASE("The overlay covers every other visible window for the time of a sheet, and answers with a beep") {
    TestWorld world;
    WinMain& window = world.Main();
    WinNbresPremiers& list = world.program->winNbresPremiers();
    Fncts& fncts = world.program->fncts;

    world.dialogs.Expect(DialogButton::Action, [&] {
        Label& overlay = list.LabBlockUI[1];
        CHECK(overlay.Visible());
        CHECK(overlay.Width() == list.Width());
        list.UserResized(520, 700);
        CHECK(overlay.Height() == 700);
        const int beeps = world.sounds.beeps;
        CHECK_FALSE(overlay.MouseDown(5, 5));
        CHECK(world.sounds.beeps == beeps + 1);
        CHECK_FALSE(window.LabBlockUI[1].Visible());
    });
    fncts.MyDialogBox("m", "", "Ok", "", "", 0, &window);
    CHECK(world.dialogs.asked.back().sheetOf == &window);
    CHECK_FALSE(list.LabBlockUI[1].Visible());
}

#include "support/TestWorld.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string preferencesFile = "/home/user/.config/Tessarolyne Prefs.txt";

// Starts a program on this preferences file.
std::unique_ptr<TestWorld> StartWith(const std::string& text, int messages = 0) {
    auto world = std::make_unique<TestWorld>(TestWorld::Launch::NotYet);
    world->files.AddFile(preferencesFile, "Deja Envoye Don 03 :@: True\n" + text);
    for (int i = 0; i < messages; ++i) {
        world->dialogs.ExpectTell();
    }
    if (messages == 0) {
        world->program->Start();
    }
    return world;
}

} // namespace

TEST_CASE("Every setting is back after a restart") {
    TestWorld first;
    WinMain& window = first.Main();
    App& app = first.program->app;
    first.files.AddFile("/home/user/primes.txt", "2\t3\t5\t7\t11\n");
    app.FichNbPrems = FolderItem::FromNativePath(first.files, "/home/user/primes.txt");
    window.Nb_NbrePcharg = 4;
    app.AutoCheckUpdt = true;
    window.UserMoved(300, 200);
    window.CheckBoxMajusc.UserPressed();
    window.CheckBoxTrUnion.UserPressed();
    window.CheckBoxFormatAuto.UserPressed();
    window.RadioButton09AZ[1].UserPressed();
    window.PopupMenuBaseOrg.UserChose(6);
    window.PopupMenuBaseDest.UserChose(34);
    window.PopupMenuLg.UserChose(2);
    first.Type(window.EditFieldMonnaie, "a :@: b");
    first.Type(window.EditFieldCentimes, "");
    window.NbreNbPparLigne = 0;
    window.UserClosed();

    auto second = StartWith("");
    second->program.reset();
    second->files.entries = first.files.entries;
    second->program = std::make_unique<Program>(second->services);
    second->program->Start();
    WinMain& again = second->Main();
    CHECK(second->program->app.FichNbPrems->NativePath() == "/home/user/primes.txt");
    CHECK(again.Nbres_Premiers.Back() == 11);
    CHECK(again.Nb_NbrePcharg == 5);
    CHECK(second->program->app.AutoCheckUpdt);
    CHECK(again.Left() == 300);
    CHECK(again.Top() == 200);
    CHECK(again.CheckBoxMajusc.Value());
    CHECK(again.CheckBoxTrUnion.Value());
    CHECK_FALSE(again.CheckBoxFormatAuto.Value());
    CHECK(again.RadioButton09AZ[1].Value());
    CHECK(again.PopupMenuBaseOrg.Text() == "en base 8");
    CHECK(again.PopupMenuBaseDest.Text() == "en base 36");
    CHECK(again.PopupMenuLg.Text() == "ch be");
    CHECK(again.EditFieldMonnaie.Text() == "a :@: b");
    CHECK(again.EditFieldCentimes.Text().empty());
    CHECK(again.NbreNbPparLigne == 0);
    CHECK(again.EditFieldBaseOrg.Text().empty()); // loading settings computes nothing
}

TEST_CASE("A place that isn't whole on the screen, by one point, is the default place") {
    const auto place = [](int left, int top) {
        const auto world =
            StartWith("Fenetre WinMain :@: " + std::to_string(left) + "," + std::to_string(top) + ",1,1\n");
        return std::pair(world->Main().Left(), world->Main().Top());
    };
    CHECK(place(0, 38) == std::pair(0, 38));
    CHECK(place(0, 37) == std::pair(20, 60));
    CHECK(place(-1, 100) == std::pair(20, 60));
    CHECK(place(1280 - 550, 1024 - 594) == std::pair(1280 - 550, 1024 - 594));
    CHECK(place(1280 - 549, 100) == std::pair(20, 60));
    CHECK(place(1280 + 10, 0) == std::pair(1280 + 10, 0)); // the second screen of the tests is to the right
}

TEST_CASE("A file that can't be read to its end says so, keeps what came before, and is kept beside") {
    auto world = StartWith(
        "Base Dest :@: 8\nBase Org :@: 35\nMajuscule :@: True\nFenetre WinMain :@: 300,200,1,1\n", 1);
    world->dialogs.Expect(DialogButton::Action); // the hint of a first launch
    const int beeps = world->sounds.beeps;
    world->loop.WhileModal([&] { world->program->app.Quit(0); });
    world->program->Start();
    CHECK(world->sounds.beeps == beeps + 3);
    CHECK(world->dialogs.told.at(0) ==
          "Error ! Please contact the authors.\nPrefsCharger, problem while reading file!");
    WinMain& window = world->Main();
    CHECK(window.PopupMenuBaseDest.ListIndex == 8);
    CHECK(window.PopupMenuBaseOrg.ListIndex == 14);
    CHECK_FALSE(window.CheckBoxMajusc.Value());
    CHECK(window.Left() == 0);
    CHECK(window.PopupMenuLg.ListIndex == 0);
    world->program->app.PrefsSauver(false);
    CHECK(world->files.entries.at(preferencesFile + ".bad").content.find("Base Org :@: 35") !=
          std::string::npos);
    CHECK(world->files.entries.at(preferencesFile).content.find("Base Org :@: 14") != std::string::npos);
}

TEST_CASE("An unknown language is told, and settings that can't be written don't hold up the quit") {
    auto world = StartWith("Langue Nombre Lettre :@: la\n", 1);
    world->program->Start();
    CHECK(world->dialogs.told.at(0) ==
          "Error ! Please contact the authors.\nPrefsCharger, LangNbreLettr = 'la'");
    CHECK(world->Main().PopupMenuLg.ListIndex == 0);
    world->files.unwritable.insert(preferencesFile);
    world->dialogs.ExpectTell();
    world->Main().UserClosed();
    world->loop.Advance(50);
    CHECK(world->loop.IsQuitting());
    CHECK(world->dialogs.told.at(1) ==
          "Error ! Please contact the authors.\nPrefsSauver, problem while writing file!");
}

#include "platform/Text.h"
#include "support/TestWorld.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string preferencesFile = "/home/user/.config/Tessarolyne Prefs.txt";

// A program on this preferences file; started, unless messages are to be awaited.
std::unique_ptr<TestWorld> StartWith(const std::string& text, int messages = 0) {
    auto world = std::make_unique<TestWorld>(TestWorld::Launch::NotYet);
    world->files.AddFile("/home/user/primes.txt", "2\t3\t5\t7\t11\n");
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

TEST_CASE("Every setting comes from its line of the file, and goes back to it") {
    const std::string file = "Date Launch :@: 2026-11-22 09:05:03\n"
                             "Deja Envoye Don 03 :@: True\n"
                             "Auto Check Update :@: True\n"
                             "Fenetre WinMain :@: 300,200,550,594\n"
                             "Majuscule :@: True\n"
                             "Fenetre WinNbres_1ers :@: 1,-2,520,540\n"
                             "Liste Nb1ers Visible :@: False\n"
                             "Fichier Nbres 1ers :@: Root:home:user:primes.txt\n"
                             "Nbre Nb Prem par Lignes :@: 25\n"
                             "Base Org :@: 6\n"
                             "Base Dest :@: 34\n"
                             "Nbre Base 09AZ :@: 1\n"
                             "Format Auto :@: False\n"
                             "Trait d'union :@: True\n"
                             "Langue Nombre Lettre :@: ch be\n"
                             "Monnaie :@: a :@: b\n"
                             "Centime :@: \n"
                             "Monnaies :@: francs\n"
                             "Centimes :@: centimes é\n"
                             "Annonces :@: False\n";
    const auto world = StartWith(file);
    WinMain& window = world->Main();
    CHECK(window.Nbres_Premiers.Back() == 11);
    CHECK(world->program->app.AutoCheckUpdt);
    CHECK_FALSE(world->program->app.Annonces);
    CHECK(std::pair(window.Left(), window.Top()) == std::pair(300, 200));
    CHECK(window.CheckBoxMajusc.Value());
    CHECK(window.CheckBoxTrUnion.Value());
    CHECK_FALSE(window.CheckBoxFormatAuto.Value());
    CHECK(window.RadioButton09AZ[1].Value());
    CHECK(window.PopupMenuBaseOrg.Text() == "en base 8");
    CHECK(window.PopupMenuBaseDest.Text() == "en base 36");
    CHECK(window.EditFieldMonnaie.Text() == "a :@: b");
    CHECK(window.EditFieldCentime.Text().empty());
    CHECK(window.EditFieldBaseOrg.Text().empty()); // loading settings computes nothing
    window.UserClosed();
    CHECK(world->files.entries.at(preferencesFile).content == ReplaceAll(file, "09:05:03", "12:00:00"));
}

TEST_CASE("A second instance leaves the binding that another has made meanwhile, and makes its own") {
    TestWorld world;
    Program second(world.services);
    second.Start();
    world.files.AddFile("/home/user/a.txt", "2\t3\t5\t7\n");
    world.program->app.FichNbPrems = world.files.At("/home/user/a.txt");
    world.program->app.PrefsSauver(false);
    second.app.PrefsSauver(false);
    const auto binds = [&](const char* path) {
        return world.files.entries.at(preferencesFile).content.find(path) != std::string::npos;
    };
    CHECK(binds("Root:home:user:a.txt\n"));
    world.files.AddFile("/home/user/b.txt");
    second.app.FichNbPrems = world.files.At("/home/user/b.txt");
    second.app.PrefsSauver(false);
    CHECK(binds("Root:home:user:b.txt\n"));
}

TEST_CASE("A place that isn't whole on the screen, by one point, is the default place") {
    const int right = 1280 - 550;
    const int bottom = 1024 - 594;
    for (const auto& [left, top] :
        {std::pair(0, 38), std::pair(0, 37), std::pair(-1, 100), std::pair(right, bottom),
            std::pair(right + 1, 100), std::pair(right, bottom + 1), std::pair(1280, 0)}) {
        const auto world =
            StartWith("Fenetre WinMain :@: " + std::to_string(left) + "," + std::to_string(top) + ",1,1\n");
        const bool onSecondScreen = left >= 1280; // of the tests' world, to the right of the first
        const bool whole = onSecondScreen || (left >= 0 && top >= 38 && left <= right && top <= bottom);
        CHECK(world->Main().Left() == (whole ? left : 20));
        CHECK(world->Main().Top() == (whole ? top : 60));
    }
}

TEST_CASE("A file that can't be read to its end says so, keeps what came before, and is kept beside") {
    auto world = StartWith(
        "Base Dest :@: 8\nBase Org :@: 35\nMajuscule :@: True\nFenetre WinMain :@: 300,200,1,1\n", 1);
    world->dialogs.Expect(DialogButton::Action); // the hint of a first launch
    world->loop.WhileModal([&] { world->program->app.Quit(0); });
    world->program->Start();
    CHECK(world->sounds.beeps == 3);
    CHECK(world->dialogs.told.at(0) ==
          "Error ! Please contact the authors.\nPrefsCharger, problem while reading file!");
    WinMain& window = world->Main();
    CHECK(window.PopupMenuBaseDest.ListIndex == 8);
    CHECK(window.PopupMenuBaseOrg.ListIndex == 14);
    CHECK_FALSE(window.CheckBoxMajusc.Value());
    CHECK(window.Left() == 0);
    CHECK(window.PopupMenuLg.ListIndex == 0);
    world->program->app.PrefsSauver(false);
    CHECK(world->files.entries.at(preferencesFile + ".bad").content.find("Org :@: 35") != std::string::npos);
    CHECK(world->files.entries.at(preferencesFile).content.find("Org :@: 14") != std::string::npos);
}

TEST_CASE("An unknown language is told, and settings that can't be written don't hold up the quit") {
    auto world = StartWith("Langue Nombre Lettre :@: la\n", 1);
    world->program->Start();
    CHECK(world->Main().PopupMenuLg.ListIndex == 0);
    world->files.unwritable.insert(preferencesFile);
    world->dialogs.ExpectTell();
    world->Main().UserClosed();
    world->loop.Advance(50);
    CHECK(world->loop.IsQuitting());
    const std::string fault = "Error ! Please contact the authors.\n";
    CHECK(world->dialogs.told == std::vector{fault + "PrefsCharger, LangNbreLettr = 'la'",
                                     fault + "PrefsSauver, problem while writing file!"});
}

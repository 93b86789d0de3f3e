#include "platform/MenuBar.h"
#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"
#include "ui/WinInfos.h"

#include <doctest/doctest.h>

#include <thread>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string preferencesFile = "/home/user/.config/Tessarolyne Prefs.txt";

// Binds a prime file to a table that holds more than it.
void BindFileWithNewPrimes(TestWorld& world) {
    world.files.AddFile("/home/user/primes.txt", "2\t3\t5\t7\n");
    world.program->app.FichNbPrems = FolderItem::FromNativePath(world.files, "/home/user/primes.txt");
    world.Main().Nb_NbrePcharg = 4;
    world.Main().NbresPremCalc(10000, false);
}

bool Ended(TestWorld& world) {
    world.loop.Advance(50);
    return world.loop.IsQuitting();
}

// A run that ends only when it is stopped.
void StartLongRun(TestWorld& world) {
    world.Main().EditFieldNbre.Text = "6";
    world.Main().ThreadDecPrems.Run = [&world] {
        while (!world.program->fncts.ArretUrg) {
            std::this_thread::yield();
        }
        world.Main().Nbre_Decompose = {0};
        world.Main().ThrNo = WinMain::factorsAreThere;
        world.Main().TimerThr.Mode = 1;
    };
    world.Main().DecompPremDeb(true);
}

} // namespace

TEST_CASE("New primes are offered to a bound file: save, drop, or stay") {
    TestWorld world;
    BindFileWithNewPrimes(world);
    const std::string before = world.files.entries.at("/home/user/primes.txt").content;
    const auto saved = [&] { return world.files.entries.at("/home/user/primes.txt").content; };
    SUBCASE("save") {
        world.dialogs.Expect(DialogButton::Action);
        world.Main().UserClosed();
        CHECK(Ended(world));
        CHECK(saved().starts_with("Nombre de Nombres Premiers : 1229\n2\t3\t5"));
    }
    SUBCASE("drop") {
        world.dialogs.Expect(DialogButton::Cancel);
        world.Main().UserClosed();
        CHECK(Ended(world));
        CHECK(saved() == before);
    }
    SUBCASE("stay, or no answer") {
        for (const DialogButton answer : {DialogButton::Alternate, DialogButton::None}) {
            world.dialogs.Expect(answer);
            world.program->app.RequestQuit();
            CHECK_FALSE(Ended(world));
            CHECK(world.program->fncts.DrapMenu);
            CHECK(world.Main().TimerQuit.Mode == 0);
            CHECK(saved() == before);
        }
    }
    CHECK(world.dialogs.asked.at(0).message ==
          "Il y a 1 225 nouveaux nombres premiers, souhaitez vous les enregistrer ?");
}

TEST_CASE("A change of the number under a quit that is then refused is dealt with afterwards") {
    TestWorld world;
    BindFileWithNewPrimes(world);
    WinMain& window = world.Main();
    window.EditFieldNbre.UserFocused();
    window.EditFieldNbre.UserTyped("255");
    window.TimerQuit.Period = 30; // the recalculation comes due first, and is put off
    world.program->app.RequestQuit();
    world.dialogs.Expect(DialogButton::Alternate);
    world.loop.Advance(31);
    CHECK(window.EditFieldBaseOrg.Text().empty());
    world.Settle();
    CHECK(window.EditFieldBaseOrg.Text() == "FF");
}

TEST_CASE("A close during a calculation asks, and the answer to stop it quits") {
    TestWorld world;
    StartLongRun(world);
    const int beeps = world.sounds.beeps;
    world.dialogs.Expect(DialogButton::Action);
    world.Main().UserClosed();
    CHECK(world.sounds.played == std::vector<std::string>{"Zoum.wav"});
    world.loop.Until([] { return false; });
    CHECK(world.loop.ExitCode() == 0);
    CHECK(world.sounds.beeps == beeps + 1);
    CHECK(world.dialogs.asked.at(0).message == "Des calculs sont en cours, souhaitez-vous les stopper ?");
}

TEST_CASE(
    "Whoever declines to quit during a calculation keeps it and the program, by any window and answer") {
    for (const DialogButton answer : {DialogButton::Cancel, DialogButton::None}) {
        for (const int way : {0, 1, 2, 3}) {
            CAPTURE(way);
            TestWorld world;
            WinMain& window = world.Main();
            window.BevelButtonListe.UserPressed();
            WinNbresPremiers& list = world.program->winNbresPremiers();
            StartLongRun(world);
            world.dialogs.Expect(answer, [&] {
                world.loop.Advance(50);
                world.program->app.RequestQuit(); // from the desktop, while the question is up already
                world.loop.Advance(50);
            });
            if (way == 0) {
                window.UserClosed();
            } else if (way == 1) {
                list.UserClosed();
            } else if (way == 2) {
                world.program->app.RequestQuit();
            } else {
                window.TimerQuit.Mode = 1; // a quit that waits for the calculation
                list.UserClosed();
            }
            CHECK_FALSE(world.program->fncts.ArretUrg);
            CHECK(window.CalculEnCours);
            world.program->fncts.ArretUrg = true;
            world.loop.Until([&] { return !window.CalculEnCours; });
            CHECK(world.program->fncts.DrapMenu);
            CHECK_FALSE(Ended(world));
        }
    }
}

TEST_CASE("A quit declined under a modal window leaves that in charge") {
    TestWorld world;
    BindFileWithNewPrimes(world);
    world.loop.WhileModal([&] {
        world.dialogs.Expect(DialogButton::Alternate, [&] { world.program->app.RequestQuit(); });
        world.program->app.RequestQuit();
        CHECK_FALSE(Ended(world));
        CHECK_FALSE(world.program->fncts.DrapMenu);
        world.program->winInfos().BoutonOk.UserPressed();
    });
    world.program->app.GetMenuBar()->Find("AppleAPropos")->UserChose(world.program->app);
    CHECK(world.program->fncts.DrapMenu);
}

TEST_CASE("A request to quit waits for a calculation without a word, and the list window asks") {
    TestWorld world;
    SUBCASE("main window alone") {
        StartLongRun(world);
        world.program->app.RequestQuit();
        CHECK_FALSE(Ended(world));
        world.program->fncts.ArretUrg = true;
        world.loop.Until([] { return false; });
    }
    SUBCASE("list open") {
        world.Main().BevelButtonListe.UserPressed();
        StartLongRun(world);
        world.dialogs.Expect(DialogButton::Action);
        world.program->app.RequestQuit();
        world.loop.Until([] { return false; });
        CHECK(world.files.entries.at(preferencesFile).content.find("Liste Nb1ers Visible :@: True") !=
              std::string::npos);
    }
    CHECK(world.loop.ExitCode() == 0);
}

TEST_CASE("A signal saves what there is and asks nothing, even if nothing can be saved") {
    TestWorld world;
    BindFileWithNewPrimes(world);
    StartLongRun(world);
    SUBCASE("all is well") {
        world.program->EndWithoutAsking();
        CHECK(world.files.entries.at("/home/user/primes.txt").content.find(" : 1229\n") != std::string::npos);
        CHECK(world.files.entries.at(preferencesFile).content.find("Base Org :@: 14") != std::string::npos);
    }
    SUBCASE("no place to save to") {
        world.files.unwritable = {preferencesFile, "/home/user/primes.txt"};
        world.program->EndWithoutAsking();
        CHECK(world.files.entries.at("/home/user/primes.txt").content == "2\t3\t5\t7\n");
    }
    CHECK(world.loop.IsQuitting());
    CHECK(world.program->fncts.ArretUrg);
}

TEST_CASE("Without a place for preferences the program says so and ends, with nothing saved") {
    TestWorld world(TestWorld::Launch::NotYet);
    world.files.known.erase(KnownFolder::Preferences);
    world.files.unwritable.insert("/opt/tessarolyne/TessarolynePrefs");
    world.dialogs.ExpectTell();
    world.program->Start();
    CHECK(world.dialogs.told.at(0) ==
          "Error !\nPlease contact the authors.\n\nImpossible to create the Preferences folder.");
    CHECK(Ended(world));
    CHECK(world.loop.ExitCode() == 0);
}

TEST_CASE("A folder beside the program serves where the system has none for preferences") {
    TestWorld world(TestWorld::Launch::NotYet);
    world.files.known.erase(KnownFolder::Preferences);
    world.files.AddFolder("/opt");
    world.files.AddFolder("/opt/tessarolyne/TessarolynePrefs");
    world.files.AddLink("/opt/tessarolyne/TessarolynePrefs/Tessarolyne Prefs.txt", "/far/prefs");
    world.files.AddFile("/far/prefs", "Deja Envoye Don 03 :@: True\n");
    world.program->Start();
    CHECK(world.program->app.DejaDonne);
    CHECK(world.files.swept == std::vector<std::string>{"/far", "/opt/tessarolyne/TessarolynePrefs"});
}

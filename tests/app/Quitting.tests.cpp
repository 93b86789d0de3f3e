#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"

using namespace tessarolyne;

namespace {

const std::string primes = "/home/user/primes.txt";

// Binds a prime file to a table that holds more than it.
void BindFileWithNewPrimes(TestWorld& world) {
    world.files.AddFile(primes, "2\t3\t5\t7\n");
    world.program->app.FichNbPrems = world.files.At(primes);
    world.Main().primeFile.Nb_NbrePcharg = 4;
    world.Main().calculation.NbresPremCalc(10000, false);
}

bool Ended(TestWorld& world) {
    world.loop.Advance(50);
    return world.loop.IsQuitting();
}

// A run that ends only when it is stopped.
void StartLongRun(TestWorld& world) {
    WinMain& window = world.Main();
    window.calculation.Begin();
    window.calculation.RunOnThread(
        {Calculation::factorsAreThere, 0, window.ProgressWheel1, window.StaticTextAvance, 0, true,
            [&world](auto) {
                while (!world.program->fncts.ArretUrg) {
                    std::this_thread::yield();
                }
            },
            [&window](auto) { window.calculation.End(); }});
}

} // namespace

TEST_CASE("New primes are offered to a bound file: save, drop, or stay") {
    for (const DialogButton answer :
        {DialogButton::Action, DialogButton::Cancel, DialogButton::Alternate, DialogButton::None}) {
        CAPTURE(answer);
        TestWorld world;
        BindFileWithNewPrimes(world);
        const std::string before = world.files.entries.at(primes).content;
        world.dialogs.Expect(answer);
        const bool quits = answer == DialogButton::Action || answer == DialogButton::Cancel;
        quits ? world.Main().UserClosed() : world.program->app.RequestQuit();
        CHECK(Ended(world) == quits);
        CHECK(world.program->fncts.DrapMenu == !quits);
        CHECK((quits || !world.Main().quitting.IsUnderWay()));
        const std::string& after = world.files.entries.at(primes).content;
        CHECK(
            (answer == DialogButton::Action ? after.starts_with("Nombre de Nombres Premiers : 1229\n2\t3\t5")
                                            : after == before));
        CHECK(world.dialogs.asked.at(0).message ==
              "Il y a 1 225 nouveaux nombres premiers, souhaitez vous les enregistrer ?");
    }
}

TEST_CASE("A change of the number under a quit that is then refused is dealt with afterwards") {
    TestWorld world;
    BindFileWithNewPrimes(world);
    WinMain& window = world.Main();
    window.EditFieldNbre.UserFocused();
    window.EditFieldNbre.UserTyped("255");
    world.loop.Advance(15);
    world.program->app.RequestQuit(); // the recalculation comes due first, and is put off
    world.dialogs.Expect(DialogButton::Alternate);
    world.loop.Advance(15);
    CHECK(window.EditFieldBaseOrg.Text().empty());
    world.Settle();
    CHECK(window.EditFieldBaseOrg.Text() == "FF");
}

TEST_CASE("A close during a calculation asks, a request to quit only with the list open, else it waits") {
    enum { Close, Request, RequestWithList };
    for (const int way : {Close, Request, RequestWithList}) {
        CAPTURE(way);
        TestWorld world;
        if (way == RequestWithList) {
            world.Main().BevelButtonListe.UserPressed();
        }
        StartLongRun(world);
        const int beeps = world.sounds.beeps;
        if (way == Request) {
            world.program->app.RequestQuit();
            CHECK_FALSE(Ended(world));
            world.Main().calculation.Stop();
        } else {
            world.dialogs.Expect(DialogButton::Action);
            way == Close ? world.Main().UserClosed() : world.program->app.RequestQuit();
        }
        world.loop.Until([] { return false; });
        CHECK(world.loop.ExitCode() == 0);
        CHECK(world.sounds.beeps == beeps + (way == Request ? 0 : 1));
        CHECK(world.sounds.played == std::vector<std::string>(way == Request ? 0 : 1, "Zoum.wav"));
        CHECK(world.HasSaved("Liste Nb1ers Visible :@: True") == (way == RequestWithList));
    }
}

TEST_CASE(
    "Whoever declines to quit during a calculation keeps it and the program, by any window and answer") {
    for (const DialogButton answer : {DialogButton::Cancel, DialogButton::None}) {
        for (const int way : {0, 1, 2, 3}) { // the last while a quit waits for the calculation
            CAPTURE(way);
            TestWorld world;
            WinMain& window = world.Main();
            window.BevelButtonListe.UserPressed();
            StartLongRun(world);
            world.dialogs.Expect(answer, [&] {
                world.loop.Advance(50);
                world.program->app.RequestQuit(); // from the desktop, while the question is up already
                world.loop.Advance(50);
            });
            if (way == 3) {
                window.quitting.CancelClose(true);
            }
            way == 0   ? window.UserClosed()
            : way == 2 ? world.program->app.RequestQuit()
                       : world.program->winNbresPremiers().UserClosed();
            CHECK((!world.program->fncts.ArretUrg && window.calculation.CalculEnCours()));
            window.calculation.Stop();
            world.loop.Until([&] { return !window.calculation.CalculEnCours(); });
            CHECK((world.program->fncts.DrapMenu && !Ended(world)));
        }
    }
}

TEST_CASE("A signal saves what there is and asks nothing, even if nothing can be saved") {
    TestWorld world;
    BindFileWithNewPrimes(world);
    StartLongRun(world);
    SUBCASE("all is well") {
        world.program->EndWithoutAsking();
        CHECK(world.files.entries.at(primes).content.find(" : 1229\n") != std::string::npos);
        CHECK(world.HasSaved("Base Org :@: 14"));
    }
    SUBCASE("no place to save to") {
        world.files.unwritable = {world.preferencesFile, primes};
        world.program->EndWithoutAsking();
        CHECK(world.files.entries.at(primes).content == "2\t3\t5\t7\n");
    }
    CHECK(world.loop.IsQuitting());
    CHECK(world.program->fncts.ArretUrg);
}

TEST_CASE(
    "Where the system has no folder for preferences, one beside the program serves, or nothing is saved") {
    const std::string own = "/opt/tessarolyne/TessarolynePrefs";
    for (const bool isThere : {false, true}) {
        TestWorld world(TestWorld::Launch::NotYet);
        world.files.known.erase(KnownFolder::Preferences);
        if (isThere) {
            world.files.AddFolder(own);
            world.files.AddLink(own + "/Tessarolyne Prefs.txt", "/far/prefs");
            world.files.AddFile("/far/prefs", "Deja Envoye Don 03 :@: True\n");
        } else {
            world.files.unwritable.insert(own);
            world.dialogs.ExpectTell();
        }
        world.program->Start();
        CHECK(world.program->app.DejaDonne == isThere);
        CHECK(world.dialogs.told ==
              std::vector<std::string>(isThere ? 0 : 1,
                  "Error !\nPlease contact the authors.\n\nImpossible to create the Preferences folder."));
        CHECK(world.files.swept ==
              (isThere ? std::vector<std::string>{"/far", own} : std::vector<std::string>()));
        CHECK(Ended(world) == !isThere);
    }
}

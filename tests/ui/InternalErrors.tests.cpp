#include "primes/WinNbresPremiers.h"
#include "support/TestWorld.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

TEST_CASE("What the program itself does wrong is told in words for its authors, and it goes on") {
    TestWorld world;
    Fncts& fncts = world.program->fncts;
    const auto told = [&](auto wrong) {
        world.dialogs.ExpectTell();
        wrong();
        return world.dialogs.told.back();
    };
    const std::string toAuthors = "Error !\nPlease contact the authors.\n";
    const auto ask = [&](const char* action) {
        world.dialogs.Expect(DialogButton::Action);
        CHECK(fncts.MyDialogBox("m", "", action, "", "", 0, &world.Main()) == 1);
    };
    CHECK(told([&] { ask(""); }) == toAuthors + "My DialogBox, BtnAct = ''");
    CHECK(told([&] { fncts.Pause(1, true); }) ==
          "Error ! Please contact the authors, Fncts - Pause should no longer use App.DoEvents !");

    WinNbresPremiers& list = world.program->winNbresPremiers();
    list.LabBlockUI[1].LockTop = false;
    CHECK(told([&] { ask("Ok"); }) ==
          toAuthors + "CtrlDsFenetrDiag, 'LabBlockUI' should be Lock Left and Lock Top");
    ask("Ok"); // that has been put right
    const Label second(list, BlockingOverlay::overlayName, {0, 0, 16, 16}, {}, {});
    CHECK(told([&] { ask("Ok"); }).starts_with(toAuthors + "CtrlDsFenetrDiag, there is more than one"));
    CHECK(list.LabBlockUI[1].Visible() == false);
}

TEST_CASE("Two routes of a conversion that disagree are reported, once until others do") {
    TestWorld world;
    const auto disagree = [&](const char* fromSource) {
        world.Main().ReportConversionMismatch("101", 2, fromSource, 16);
    };
    for (const char* fromSource : {"11", "10"}) {
        world.dialogs.Expect(DialogButton::Action);
        disagree(fromSource);
        disagree(fromSource); // a second dialog would fail the test
    }
    CHECK(world.dialogs.asked.front().message ==
          "Il y a une erreur de transcription de base !\rRésultat en base 2 \rdepuis base 10 = 101 "
          "\rdepuis base 16 = 11 ");
}

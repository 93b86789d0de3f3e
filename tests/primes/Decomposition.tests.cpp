#include "support/TestWorld.h"

#include "platform/Text.h"

#include <doctest/doctest.h>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string hint = "Pour les grands nombres, cliquez Décomposer.\rCela peut être long.";

} // namespace

TEST_CASE("Factors stand in rising order, and what isn't a whole number from 1 has none") {
    TestWorld world;
    WinMain& window = world.Main();
    const auto& factors = window.TxtAreaDecomp1er.Text;
    window.CheckBoxFormatAuto.UserPressed();
    world.Settle();
    world.Type(window.EditFieldNbre, "999999999999");
    CHECK(factors() == "3 x 3 x 3 x 7 x 11 x 13 x 37 x 101 x 9901");
    for (const char* refused : {"0", "12.5", "."}) {
        world.Type(window.EditFieldNbre, refused);
        CHECK(factors() == "#Erreur Nbre !");
        CHECK_FALSE(window.PushButtDecomposer.Enabled());
    }
}

TEST_CASE("A number at or above the table's last prime is factored on the spot, one below it on the thread") {
    TestWorld world;
    WinMain& window = world.Main();
    window.EditFieldNbre.Text = "11";
    for (int again = 0; again < 2; ++again) {
        window.decomposition.DecompPremDeb(false);
        CHECK(window.TxtAreaDecomp1er.Text() == "11");
        CHECK(window.primeFile.Nbres_Premiers.Back() == 11);
        CHECK(!window.calculation.IsOnThread());
    }
    CHECK(window.calculation.TicksFinCalc == world.loop.Ticks() + 30); // half a second
    window.EditFieldNbre.Text = "6";
    window.decomposition.DecompPremDeb(false);
    CHECK(window.TxtAreaDecomp1er.Text() == "…");
    CHECK_FALSE(world.program->fncts.DrapMenu);
    CHECK(window.EditFieldNbre.Enabled());
    world.Settle();
    CHECK(window.TxtAreaDecomp1er.Text() == "2 x 3");
    CHECK(world.program->fncts.DrapMenu);
}

TEST_CASE("A hard number gives the hint and the button; Escape stops its run once, with its sound") {
    TestWorld world;
    WinMain& window = world.Main();
    CHECK(window.UserPressedKey(Chr(27))); // no run: it does nothing
    CHECK(world.sounds.played.empty());
    world.memory.available = std::uint64_t{1} << 40; // a long way to the largest factor
    world.Type(window.EditFieldNbre, "999999999998");
    CHECK(window.TxtAreaDecomp1er.Text() == hint);
    CHECK(window.PushButtDecomposer.Enabled());
    window.PushButtDecomposer.UserPressed();
    CHECK(window.TxtAreaDecomp1er.Text() == "…");
    CHECK_FALSE(window.PushButtDecomposer.Enabled());
    world.loop.WaitUntil([&] { return window.calculation.Progress.Goal == 168406871; });
    CHECK_FALSE(window.EditFieldNbre.UserPressedKey(Chr(27)));
    CHECK(window.UserPressedKey(Chr(27)));
    CHECK(world.sounds.played == std::vector<std::string>{"Zoum.wav"});
    world.Settle();
    CHECK(window.TxtAreaDecomp1er.Text() == hint);
}

TEST_CASE("A run that memory ends leaves its hint and one message") {
    TestWorld world;
    WinMain& window = world.Main();
    world.memory.available = 0;
    world.dialogs.ExpectTell();
    world.Type(window.EditFieldNbre, "999999999989");
    CHECK(window.TxtAreaDecomp1er.Text() == hint);
    CHECK(world.dialogs.told.size() == 1);
}

TEST_CASE("A product that isn't the number is shown all the same, and reported once") {
    TestWorld world;
    WinMain& window = world.Main();
    window.decomposition.Nbre_Decompose = {2, 3, 7};
    for (const std::uint64_t number : {1000U, 1001U}) {
        world.dialogs.Expect(DialogButton::Action);
        window.decomposition.DecompPremFin(number);
        window.decomposition.DecompPremFin(number);
        CHECK(window.TxtAreaDecomp1er.Text() == "2 x 3 x 7");
        CHECK(window.PushButtDecomposer.Enabled());
    }
    CHECK(world.dialogs.asked.front().message ==
          "Il y a une erreur de décomposition !\rNombre Décomposé = 1 000 \rNombre Recomposé = 42 ");
}

TEST_CASE("A failure inside the thread ends the run like a stop, and the program goes on") {
    TestWorld world;
    WinMain& window = world.Main();
    world.dialogs.ExpectTell();
    world.memory.isBroken = true;
    window.EditFieldNbre.Text = "999999999998";
    window.decomposition.DecompPremDeb(true);
    CHECK(window.calculation.CalculEnCours());
    world.Settle();
    CHECK(window.TxtAreaDecomp1er.Text() == hint);
    CHECK(world.program->fncts.DrapMenu);
    CHECK(world.dialogs.told.back() == "Error ! Please contact the authors.\nThread, planted");
    world.memory.isBroken = false;
    world.Type(window.EditFieldNbre, "6");
    CHECK(window.TxtAreaDecomp1er.Text() == "2 x 3");
}

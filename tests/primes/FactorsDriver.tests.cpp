#include "support/TestWorld.h"

#include "platform/Text.h"

#include <doctest/doctest.h>

#include <stdexcept>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string hint = "Pour les grands nombres, cliquez Décomposer.\rCela peut être long.";

// A window whose table goes to 1000, so that 6 is factored on the thread, and no recalculation is due.
struct ThreadWorld : TestWorld {
    ThreadWorld() {
        Main().NbresPremCalc(1000, false);
        Type(Main().EditFieldNbre, "6");
    }
    WinMain& window = Main();
    const Property<std::string>& factors = window.TxtAreaDecomp1er.Text;
};

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
        window.DecompPremDeb(false);
        CHECK(window.TxtAreaDecomp1er.Text() == "11");
        CHECK(window.Nbres_Premiers.Back() == 11);
        CHECK(window.ThreadDecPrems.State() == Thread::notRunning);
    }
    CHECK(window.TicksFinCalc == world.loop.Ticks() + 30); // half a second
    window.TicksFinCalc = world.loop.Ticks() - 1;
    CHECK(window.NbresPremCalc(0, true) == 11);
    CHECK(world.program->fncts.ArretUrg);
    window.EditFieldNbre.Text = "6";
    window.DecompPremDeb(false);
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
    world.loop.WaitUntil([&] { return window.Progress.Goal == 168406871; });
    CHECK_FALSE(window.EditFieldNbre.UserPressedKey(Chr(27)));
    CHECK(window.UserPressedKey(Chr(27)));
    CHECK(world.sounds.played == std::vector<std::string>{"Zoum.wav"});
    world.Settle();
    CHECK(window.TxtAreaDecomp1er.Text() == hint);
}

TEST_CASE("A result waits for the dialog that is up, and the timer is ready for the next") {
    ThreadWorld world;
    WinMain& window = world.window;
    world.program->fncts.DrapDiagBox = true;
    window.DecompPremDeb(false);
    world.loop.Until([&] { return window.TimerThr.Period == 50; });
    world.loop.Advance(200);
    CHECK(window.CalculEnCours);
    CHECK(world.factors() == "…");
    world.program->fncts.DrapDiagBox = false;
    world.loop.Advance(50);
    CHECK(world.factors() == "2 x 3");
    CHECK(window.TimerThr.Period == 1);
    CHECK(window.TimerThr.Mode == 0);
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
    window.Nbre_Decompose = {2, 3, 7};
    for (const std::uint64_t number : {1000U, 1001U}) {
        world.dialogs.Expect(DialogButton::Action);
        window.DecompPremFin(number);
        window.DecompPremFin(number);
        CHECK(window.TxtAreaDecomp1er.Text() == "2 x 3 x 7");
        CHECK(window.PushButtDecomposer.Enabled());
    }
    CHECK(world.dialogs.asked.front().message ==
          "Il y a une erreur de décomposition !\rNombre Décomposé = 1 000 \rNombre Recomposé = 42 ");
}

TEST_CASE("A failure inside the thread ends the run like a stop, and the program goes on") {
    ThreadWorld world;
    WinMain& window = world.window;
    world.dialogs.ExpectTell();
    window.ThreadDecPrems.Run = [] { throw std::runtime_error("planted"); };
    window.DecompPremDeb(false);
    CHECK(window.CalculEnCours);
    world.Settle();
    CHECK(world.factors() == hint);
    CHECK(world.program->fncts.DrapMenu);
    CHECK(world.dialogs.told.back().starts_with("Error ! Please contact the authors.\nThread, "));
    window.ThreadDecPrems.Run = [&] { window.ThreadDecPrems_Run(window.ThreadDecPrems); };
    window.DecompPremDeb(false);
    world.Settle();
    CHECK(world.factors() == "2 x 3");
}

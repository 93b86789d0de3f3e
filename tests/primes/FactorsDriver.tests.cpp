#include "support/TestWorld.h"

#include "platform/Text.h"

#include <doctest/doctest.h>

#include <cstddef>
#include <pthread.h>
#include <stdexcept>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

const std::string hint = "Pour les grands nombres, cliquez Décomposer.\rCela peut être long.";

// As long as it lives the system refuses every thread: no address space holds such a stack.
class HugeStacks {
public:
    HugeStacks() {
        REQUIRE(pthread_getattr_default_np(&usual_) == 0);
        pthread_attr_t huge = usual_;
        REQUIRE(pthread_attr_setstacksize(&huge, std::size_t{1} << 52) == 0);
        REQUIRE(pthread_setattr_default_np(&huge) == 0);
    }
    ~HugeStacks() { pthread_setattr_default_np(&usual_); }
    HugeStacks(const HugeStacks&) = delete;
    HugeStacks& operator=(const HugeStacks&) = delete;

private:
    pthread_attr_t usual_{};
};

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

TEST_CASE("Factors stand in rising order, grouped or bare as the switch says") {
    TestWorld world;
    WinMain& window = world.Main();
    const auto& factors = window.TxtAreaDecomp1er.Text;
    world.Type(window.EditFieldNbre, "1000002");
    CHECK(factors() == "2 x 3 x 166 667");
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
    for (const bool runs : {true, false}) {
        CHECK(window.TxtAreaDecomp1er.Text() == (runs ? "…" : "2 x 3"));
        CHECK(window.ProgressWheel1.Visible() == runs);
        CHECK(world.program->fncts.DrapMenu != runs);
        CHECK(window.PopupMenuLg.Enabled() != runs);
        CHECK(window.EditFieldNbre.Enabled());
        world.Settle();
    }
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
    const auto reached = window.Nbres_Premiers.UpperBound();
    window.CheckBoxFormatAuto.UserPressed(); // changes the display only
    CHECK(window.Nbres_Premiers.UpperBound() == reached);
    CHECK(window.TxtAreaDecomp1er.Text() == hint);
    window.CheckBoxFormatAuto.UserPressed();

    window.PushButtDecomposer.UserPressed();
    CHECK(window.TxtAreaDecomp1er.Text() == "…");
    CHECK_FALSE(window.PushButtDecomposer.Enabled());
    world.loop.WaitUntil([&] { return window.Progress.Goal == 168406871; });
    CHECK_FALSE(window.EditFieldNbre.UserPressedKey(Chr(27)));
    CHECK(window.UserPressedKey(Chr(27)));
    CHECK(world.sounds.played == std::vector<std::string>{"Zoum.wav"});
    world.Settle();
    CHECK(window.TxtAreaDecomp1er.Text() == hint);

    world.memory.available = 1 << 20;
    window.PushButtDecomposer.UserPressed();
    world.Settle();
    CHECK(window.TxtAreaDecomp1er.Text() == "2 x 2 969 x 168 406 871");
    CHECK_FALSE(window.PushButtDecomposer.Enabled());
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
    window.EditFieldNbre.Text = "12";
    window.DecompPremDeb(true);
    world.Settle();
    CHECK(window.TxtAreaDecomp1er.Text() == "2 x 2 x 3"); // nothing had to grow
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

TEST_CASE("A hand-over of a step that doesn't exist is an internal error, and the program goes on") {
    TestWorld world;
    world.Main().ThrNo = 9;
    world.Main().TimerThr.Mode = 1;
    world.dialogs.ExpectTell();
    world.loop.Advance(5);
    CHECK(
        world.dialogs.told.back() == "Error ! Please contact the authors, TimerThr\nThrNo 9 , Which Case ?");
}

TEST_CASE("A failure inside the thread or of its start ends the run like a stop, and the program goes on") {
    ThreadWorld world;
    WinMain& window = world.window;
    world.dialogs.ExpectTell();
    SUBCASE("inside") {
        window.ThreadDecPrems.Run = [] { throw std::runtime_error("planted"); };
        window.DecompPremDeb(false);
    }
    SUBCASE("at its start") {
        const HugeStacks noThread;
        window.DecompPremDeb(false);
    }
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

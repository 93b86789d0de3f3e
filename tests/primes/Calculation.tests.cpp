#include "platform/Text.h"
#include "primes/RunFixture.h"
#include "primes/WinNbresPremiers.h"
#include "primes/engine/PrimeGrowth.h"
#include "support/TestWorld.h"

#include <cstdlib>
#include <random>

using namespace tessarolyne;

namespace {

const std::string hint = "Pour les grands nombres, cliquez Décomposer.\rCela peut être long.";

struct World : TestWorld {
    WinMain& window = Main();
    Calculation& calculation = window.calculation;
    PrimeTable& table = window.primeFile.Nbres_Premiers;
    std::string Factors() { return window.TxtAreaDecomp1er.Text; }
    // Without the pause of a typist, and with `force` on the thread.
    void Decompose(const std::string& number, bool force = false) {
        window.EditFieldNbre.Text = number;
        window.decomposition.DecompPremDeb(force);
    }
};

} // namespace

TEST_CASE("Factors stand in rising order, and what isn't a whole number from 1 has none") {
    World world;
    world.window.CheckBoxFormatAuto.UserPressed();
    world.Settle();
    world.Type(world.window.EditFieldNbre, "999999999999");
    CHECK(world.Factors() == "3 x 3 x 3 x 7 x 11 x 13 x 37 x 101 x 9901");
    for (const char* refused : {"0", "12.5", "."}) {
        world.Type(world.window.EditFieldNbre, refused);
        CHECK(world.Factors() == "#Erreur Nbre !");
        CHECK_FALSE(world.window.PushButtDecomposer.Enabled());
    }
}

TEST_CASE("A number at or above the table's last prime is factored on the spot, one below it on the thread") {
    World world;
    world.Decompose("11");
    CHECK((world.Factors() == "11" && world.table.Back() == 11 && !world.calculation.IsOnThread()));
    CHECK(world.calculation.TicksFinCalc == world.loop.Ticks() + 30); // half a second
    world.Decompose("6");
    CHECK((world.Factors() == "…" && !world.program->fncts.DrapMenu));
    CHECK(world.window.EditFieldNbre.Enabled());
    world.Settle();
    CHECK((world.Factors() == "2 x 3" && world.program->fncts.DrapMenu));
}

TEST_CASE("A hard number gives the hint and the button; Escape stops its run once, with its sound") {
    World world;
    WinMain& window = world.window;
    CHECK(window.UserPressedKey(Chr(27))); // no run: it does nothing
    CHECK(world.sounds.played.empty());
    world.memory.available = std::uint64_t{1} << 40; // a long way to the largest factor
    world.Type(window.EditFieldNbre, "999999999998");
    CHECK((world.Factors() == hint && window.PushButtDecomposer.Enabled()));
    window.PushButtDecomposer.UserPressed();
    CHECK((world.Factors() == "…" && !window.PushButtDecomposer.Enabled()));
    world.loop.WaitUntil([&] { return world.calculation.Progress.Goal == 168406871; });
    CHECK_FALSE(window.EditFieldNbre.UserPressedKey(Chr(27)));
    CHECK(window.UserPressedKey(Chr(27)));
    CHECK(world.sounds.played == std::vector<std::string>{"Zoum.wav"});
    world.Settle();
    CHECK(world.Factors() == hint);
}

TEST_CASE("A run that memory or a failure ends leaves its hint and one message, and the program goes on") {
    World world;
    world.memory.available = 0;
    world.dialogs.ExpectTell();
    world.Type(world.window.EditFieldNbre, "999999999989");
    CHECK(world.Factors() == hint);
    world.memory.isBroken = true;
    world.dialogs.ExpectTell();
    world.Decompose("999999999998", true);
    CHECK(world.calculation.CalculEnCours());
    world.Settle();
    CHECK(world.Factors() == hint);
    CHECK(world.program->fncts.DrapMenu);
    CHECK(world.dialogs.told.back() == "Error ! Please contact the authors.\nThread, planted");
    world.memory.isBroken = false;
    world.Type(world.window.EditFieldNbre, "6");
    CHECK(world.Factors() == "2 x 3");
}

TEST_CASE("A product that isn't the number is shown all the same, and reported once") {
    World world;
    world.window.decomposition.Nbre_Decompose = {2, 3, 7};
    world.dialogs.Expect(DialogButton::Action);
    for (const bool isNew : {true, false}) {
        world.window.PushButtDecomposer.Enabled = false;
        world.window.decomposition.DecompPremFin(1000);
        CHECK((world.Factors() == "2 x 3 x 7" && world.window.PushButtDecomposer.Enabled() == isNew));
    }
    CHECK(world.dialogs.asked.front().message ==
          "Il y a une erreur de décomposition !\rNombre Décomposé = 1 000 \rNombre Recomposé = 42 ");
}

TEST_CASE("A run's wheel tells its last prime once a second to the ear, and never one beyond the goal") {
    World world;
    ProgressWheel& wheel = world.window.ProgressWheel1;
    std::vector<std::string> heard{""};
    const Connection connection = wheel.Changed.Connect([&] {
        CHECK(wheel.Value() <= 1200);
        if (heard.back() != wheel.Spoken()) {
            heard.push_back(wheel.Spoken());
        }
    });
    world.calculation.Progress.Follow(wheel, world.window.StaticTextAvance, 1200);
    for (const std::uint64_t limit : {100U, 1000U, 1100U, 1150U, 2000U, 2100U}) {
        world.loop.Advance(249);
        world.calculation.NbresPremCalc(limit, false);
        world.loop.Advance(1);
    }
    CHECK(world.window.StaticTextAvance.Text == "99 % · Esc : arrêter");
    world.calculation.Progress.End();
    world.loop.Advance(1000);
    CHECK(
        heard == std::vector<std::string>{"", "2, 3, 5, 7 … 101 / 1 200", "2, 3, 5, 7 … 1 200 / 1 200", ""});
    CHECK(wheel.Maximum == 0);
}

TEST_CASE("After ten seconds the end calls the user back, whether or not it could be told how far it was") {
    World world;
    for (const int milliseconds : {10'000, 10'001}) {
        world.calculation.Progress.Follow(world.window.ProgressWheel1, world.window.StaticTextAvance, 0);
        world.loop.Advance(milliseconds);
        const Label& label = world.window.StaticTextAvance;
        CHECK((label.Visible() && label.Text() == "Esc : arrêter" && world.desktop.askedForAttention == 0));
        world.calculation.Progress.End();
        CHECK_FALSE(label.Visible());
    }
    CHECK(world.desktop.askedForAttention == 1);
}

TEST_CASE("A number typed during a run says after half a second that it waits, and then is dealt with") {
    World world;
    const auto& isTold = world.window.StaticTextEnAttente.Visible;
    world.calculation.Begin();
    world.window.EditFieldNbre.UserFocused();
    world.window.EditFieldNbre.UserTyped("7");
    world.loop.Advance(499);
    CHECK_FALSE(isTold);
    world.loop.Advance(1);
    CHECK(isTold);
    CHECK(world.announcer.said == std::vector<std::string>{"Le nombre saisi attend la fin du calcul."});
    world.calculation.End();
    world.loop.Advance(20);
    CHECK_FALSE(isTold);
    CHECK(world.window.TxtAreaLettres.Text().starts_with("sept"));
}

TEST_CASE(
    "Runs that are stopped at any moment, on real threads, leave the table as one that grew in one go") {
    constexpr const char* farAway = "39999999967"; // a prime that no run here gets to
    const int cycles = std::getenv("TESSAROLYNE_LONG") != nullptr ? 100'000 : 500;
    World world;
    world.memory.available = std::uint64_t{1} << 40; // a long way to where the runs are sent
    world.window.BevelButtonListe.UserPressed();
    WinNbresPremiers& list = world.program->winNbresPremiers();
    PrimeTable& table = world.table;
    std::mt19937 random(1);
    for (int cycle = 0; cycle < cycles; ++cycle) {
        if (table.Size() > 2'000'000) {
            table.Clear();
            REQUIRE(AppendAll(table, {2, 3, 5, 7}));
        }
        // Most runs are short, so that their first and last steps meet the stop; some end among the windows.
        const bool isFar = random() % 64 == 0;
        const std::string goal = isFar ? farAway : std::to_string(table.Back() + random() % 2000);
        const std::uint64_t reach = table.Back() + (isFar ? 100'000 : 0);
        if (cycle % 2 == 0) {
            list.EditFieldFin.Text = goal;
            list.PushButtonCalcPrems.UserPressed();
        } else {
            world.Decompose(goal, true);
        }
        for (auto yields = random() % 8; yields > 0 || table.Back() < reach; yields -= yields > 0 ? 1 : 0) {
            std::this_thread::yield();
        }
        REQUIRE(list.UserPressedKey(Chr(27)));
        world.loop.Until([&] { return !world.calculation.CalculEnCours(); });
        REQUIRE(!world.calculation.IsOnThread());
        list.EditFieldAffAu.Text = "6"; // what is listed isn't at stake here
    }
    TableOf inOneGo;
    RunFixture run;
    CHECK(NbresPremCalc(inOneGo, table.Back(), run.untimed) == table.Back());
    CHECK(inOneGo.Size() == table.Size());
}

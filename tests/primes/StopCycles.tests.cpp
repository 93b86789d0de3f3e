// Calculations that are started and stopped over and over, on real threads.

#include "platform/Text.h"
#include "primes/RunFixture.h"
#include "primes/WinNbresPremiers.h"
#include "primes/engine/PrimeGrowth.h"
#include "support/TestWorld.h"

#include <doctest/doctest.h>

#include <cstdlib>
#include <random>
#include <thread>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

constexpr const char* farAway = "39999999967"; // a prime that no run here gets to
constexpr std::int32_t largeEnough = 2'000'000;

} // namespace

TEST_CASE("Runs that are stopped at any moment leave the table as one that grew in one go") {
    const int cycles = std::getenv("TESSAROLYNE_LONG") != nullptr ? 100'000 : 500;
    TestWorld world;
    world.memory.available = std::uint64_t{1} << 40; // a long way to where the runs are sent
    WinMain& window = world.Main();
    PrimeTable& table = window.primeFile.Nbres_Premiers;
    window.BevelButtonListe.UserPressed();
    WinNbresPremiers& list = world.program->winNbresPremiers();
    std::mt19937 random(1);
    for (int cycle = 0; cycle < cycles; ++cycle) {
        if (table.Size() > largeEnough) {
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
            window.EditFieldNbre.Text = goal;
            window.decomposition.DecompPremDeb(true);
        }
        for (auto yields = random() % 8; yields > 0 || table.Back() < reach; yields -= yields > 0 ? 1 : 0) {
            std::this_thread::yield();
        }
        REQUIRE(list.UserPressedKey(Chr(27)));
        world.loop.Until([&] { return !window.calculation.CalculEnCours(); });
        REQUIRE(!window.calculation.IsOnThread());
        list.EditFieldAffAu.Text = "6"; // what is listed isn't at stake here
    }
    TableOf inOneGo;
    RunFixture run;
    CHECK(NbresPremCalc(inOneGo, table.Back(), run.untimed) == table.Back());
    CHECK(inOneGo.Size() == table.Size());
}

#include "platform/Text.h"
#include "support/TestWorld.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

using namespace tessarolyne;
using namespace tessarolyne::tests;

TEST_CASE("A run's wheel tells its last prime once a second to the ear, and never one beyond the goal") {
    TestWorld world;
    WinMain& window = world.Main();
    ProgressWheel& wheel = window.ProgressWheel1;
    std::vector<std::string> heard{""};
    const Connection connection = wheel.Changed.Connect([&] {
        CHECK(wheel.Value() <= 1200);
        if (heard.back() != wheel.Spoken()) {
            heard.push_back(wheel.Spoken());
        }
    });
    window.calculation.Progress.Follow(wheel, window.StaticTextAvance, 1200);
    for (const std::uint64_t limit : {100U, 1000U, 1100U, 1150U, 2000U, 2100U}) {
        world.loop.Advance(249);
        window.calculation.NbresPremCalc(limit, false);
        world.loop.Advance(1);
    }
    CHECK(window.StaticTextAvance.Text == "99 % · Esc : arrêter");
    window.calculation.Progress.End();
    world.loop.Advance(1000);
    CHECK(
        heard == std::vector<std::string>{"", "2, 3, 5, 7 … 101 / 1 200", "2, 3, 5, 7 … 1 200 / 1 200", ""});
    CHECK(wheel.Maximum == 0);
}

TEST_CASE("After ten seconds the end calls the user back, whether or not it could be told how far it was") {
    TestWorld world;
    WinMain& window = world.Main();
    for (const int milliseconds : {10'000, 10'001}) {
        window.calculation.Progress.Follow(window.ProgressWheel1, window.StaticTextAvance, 0);
        world.loop.Advance(milliseconds);
        CHECK(window.StaticTextAvance.Visible);
        CHECK(window.StaticTextAvance.Text == "Esc : arrêter");
        CHECK(world.desktop.askedForAttention == 0);
        window.calculation.Progress.End();
        CHECK_FALSE(window.StaticTextAvance.Visible);
    }
    CHECK(world.desktop.askedForAttention == 1);
}

TEST_CASE("A number typed during a run says after half a second that it waits, and then is dealt with") {
    TestWorld world;
    WinMain& window = world.Main();
    window.calculation.Begin();
    window.EditFieldNbre.UserFocused();
    window.EditFieldNbre.UserTyped("7");
    world.loop.Advance(499);
    CHECK_FALSE(window.StaticTextEnAttente.Visible);
    world.loop.Advance(1);
    CHECK(window.StaticTextEnAttente.Visible);
    CHECK(world.announcer.said == std::vector<std::string>{"Le nombre saisi attend la fin du calcul."});
    window.calculation.End();
    world.loop.Advance(20);
    CHECK_FALSE(window.StaticTextEnAttente.Visible);
    CHECK(window.TxtAreaLettres.Text().starts_with("sept"));
}

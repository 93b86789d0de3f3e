#include "platform/Text.h"
#include "support/TestWorld.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

using namespace tessarolyne;
using namespace tessarolyne::tests;

TEST_CASE("A run's wheel tells its last prime four times a second to the eye, once a second to the ear") {
    TestWorld world;
    WinMain& window = world.Main();
    ProgressWheel& wheel = window.ProgressWheel1;
    std::vector<std::string> seen{""};
    std::vector<std::string> heard{""};
    std::vector<std::int64_t> values{0};
    const auto note = [](auto& list, const auto& now) {
        if (list.back() != now) {
            list.push_back(now);
        }
    };
    Label& label = window.StaticTextAvance;
    std::vector<std::string> beside{""};
    const Connection besideIt =
        label.Changed.Connect([&] { note(beside, label.Visible ? label.Text() : std::string()); });
    const Connection connection = wheel.Changed.Connect([&] {
        note(seen, wheel.HelpTag());
        note(heard, wheel.Spoken());
        note(values, wheel.Value());
    });

    window.Progress.Follow(wheel, label, 1200);
    for (const std::uint64_t limit : {100U, 1000U, 1100U, 1150U, 2000U, 2100U}) {
        world.loop.Advance(249);
        window.NbresPremCalc(limit, false);
        world.loop.Advance(1);
    }
    window.Progress.End();
    world.loop.Advance(1000);
    const std::string upTo = "2, 3, 5, 7 … ";
    const std::string inOneLine = ReplaceAll(upTo, " ", "\u00A0");
    const std::string of = " / 1 200";
    const std::string ofInOneLine = ReplaceAll(of, " ", "\u00A0");
    CHECK(seen == std::vector<std::string>{"", inOneLine + "101" + ofInOneLine,
                      inOneLine + "997" + ofInOneLine, inOneLine + "1\u00A0097" + ofInOneLine,
                      inOneLine + "1\u00A0151" + ofInOneLine, inOneLine + "1\u00A0200" + ofInOneLine, ""});
    CHECK(heard == std::vector<std::string>{"", upTo + "101" + of, upTo + "1 200" + of, ""});
    CHECK(values == std::vector<std::int64_t>{0, 101, 1200, 0}); // never beyond the goal
    CHECK(wheel.Maximum == 0);
    const std::string escape = " % · Esc : arrêter";
    CHECK(beside == std::vector<std::string>{"", "95" + escape, "99" + escape, ""});
    CHECK(world.desktop.askedForAttention == 0);
}

TEST_CASE("After ten seconds the end calls the user back, whether or not it could be told how far it was") {
    TestWorld world;
    WinMain& window = world.Main();
    for (const int milliseconds : {10'000, 10'001}) {
        window.Progress.Follow(window.ProgressWheel1, window.StaticTextAvance, 0);
        world.loop.Advance(milliseconds);
        CHECK(window.StaticTextAvance.Visible);
        CHECK(window.StaticTextAvance.Text == "Esc : arrêter");
        CHECK(world.desktop.askedForAttention == 0);
        window.Progress.End();
        CHECK_FALSE(window.StaticTextAvance.Visible);
    }
    CHECK(world.desktop.askedForAttention == 1);
}

TEST_CASE("A number typed during a run says after half a second that it waits, and then is dealt with") {
    TestWorld world;
    WinMain& window = world.Main();
    window.CalculEnCours = true;
    window.EditFieldNbre.UserFocused();
    window.EditFieldNbre.UserTyped("7");
    world.loop.Advance(499);
    CHECK_FALSE(window.StaticTextEnAttente.Visible);
    world.loop.Advance(1);
    CHECK(window.StaticTextEnAttente.Visible);
    CHECK(world.announcer.said == std::vector<std::string>{"Le nombre saisi attend la fin du calcul."});
    window.CalculEnCours = false;
    world.loop.Advance(20);
    CHECK_FALSE(window.StaticTextEnAttente.Visible);
    CHECK(window.TxtAreaLettres.Text().starts_with("sept"));
}

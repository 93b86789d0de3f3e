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
    const Connection connection = wheel.Changed.Connect([&] {
        note(seen, wheel.HelpTag());
        note(heard, wheel.Spoken());
        note(values, wheel.Value());
    });

    window.Progress.Follow(wheel, 1200);
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
}

#include "platform/Timer.h"
#include "platform/Thread.h"
#include "support/VirtualLoop.h"

#include <doctest/doctest.h>

#include <latch>

using namespace tessarolyne;
using namespace tessarolyne::tests;

TEST_CASE("a timer that a thread's body starts counts from there on, but rings after the body only") {
    VirtualLoop loop;
    Timer timer(loop, 50);
    bool rung = false;
    timer.Action = [&] { rung = true; };
    std::latch started(1);
    std::latch mayEnd(1);
    Thread thread(loop);
    thread.Run = [&] {
        timer.Mode = 1;
        started.count_down();
        mayEnd.wait();
    };

    int already = 0;
    SUBCASE("the main thread is busy for a part of the period") {
        already = 30;
    }
    SUBCASE("the main thread is busy for longer") {
        already = 80;
    }
    thread.Start();
    started.wait();
    loop.Advance(already);
    CHECK_FALSE(rung);
    mayEnd.count_down();
    loop.Until([&] { return timer.Mode == 1; });
    if (already < 50) {
        loop.Advance(50 - already - 1);
        CHECK_FALSE(rung);
        loop.Advance(1);
    } else {
        loop.Advance(0);
    }
    CHECK(rung);
}

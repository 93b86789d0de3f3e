#include "platform/Timer.h"
#include "platform/Thread.h"
#include "support/VirtualLoop.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <latch>

using namespace tessarolyne;
using namespace tessarolyne::tests;

TEST_CASE("A timer that a thread's body starts counts from there on, but rings after the body only") {
    for (const int busy : {30, 80}) { // how long the body goes on: for a part of the period, for longer
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
        thread.Start();
        started.wait();
        loop.Advance(busy);
        mayEnd.count_down();
        loop.Until([&] { return timer.Mode == 1; });
        CHECK_FALSE(rung);
        loop.Advance(std::max(0, 49 - busy));
        CHECK(rung == (busy > 50));
        loop.Advance(1);
        CHECK(rung);
    }
}

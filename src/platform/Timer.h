#pragma once

#include "platform/Event.h"
#include "platform/EventLoop.h"

#include <cstdint>

namespace tessarolyne {

// Gives `Action` on the main thread, once or again and again. Mode: 0 off, 1 single, 2 multiple. A single
// timer is off again before its Action runs. The only timer property that a Thread's body may touch is Mode;
// what it assigns takes effect once the body has been left, the period counted from the assignment on.
class Timer {
public:
    Timer(EventLoop& loop, int period) : Mode(*this), Period(period), loop_(loop) {}
    ~Timer() { Disarm(); }
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    // Begins the period anew if the timer runs.
    void Reset();

    // Mode, assigned and read by its name.
    class ModeProperty {
    public:
        explicit ModeProperty(Timer& timer) : timer_(timer) {}
        ModeProperty(const ModeProperty&) = delete;
        ModeProperty& operator=(int mode) {
            timer_.SetMode(mode);
            return *this;
        }
        operator int() const { return timer_.mode_; }

    private:
        Timer& timer_;
    };

    ModeProperty Mode;
    int Period; // milliseconds

    Event<void()> Action;

private:
    void SetMode(int mode);
    void SetModeSince(std::int64_t moment, int mode);
    void Arm(std::int64_t since);
    void Disarm();
    void Fire();

    EventLoop& loop_;
    int mode_ = 0;
    EventLoop::AlarmId alarm_ = 0;
};

} // namespace tessarolyne

#include "platform/Timer.h"

#include "platform/Thread.h"

namespace tessarolyne {

void Timer::SetMode(int mode) {
    if (Thread* thread = Thread::Current()) {
        thread->AfterBody([this, mode] { SetMode(mode); });
        return;
    }
    if (mode == mode_) {
        return;
    }
    mode_ = mode;
    Disarm();
    if (mode_ != 0) {
        Arm();
    }
}

void Timer::Reset() {
    if (mode_ != 0) {
        Disarm();
        Arm();
    }
}

void Timer::Arm() {
    alarm_ = loop_.SetAlarm(Period, [this] { Fire(); });
}

void Timer::Disarm() {
    if (alarm_ != 0) {
        loop_.CancelAlarm(alarm_);
        alarm_ = 0;
    }
}

void Timer::Fire() {
    alarm_ = 0;
    if (mode_ == 1) {
        mode_ = 0;
    } else {
        Arm();
    }
    Action();
}

} // namespace tessarolyne

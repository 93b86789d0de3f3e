#include "platform/Timer.h"

#include "platform/Thread.h"

#include <algorithm>

namespace tessarolyne {

void Timer::SetMode(int mode) {
    if (Thread* thread = Thread::Current()) {
        thread->AfterBody([this, mode, now = loop_.Milliseconds()] { SetModeSince(now, mode); });
    } else {
        SetModeSince(loop_.Milliseconds(), mode);
    }
}

void Timer::SetModeSince(std::int64_t moment, int mode) {
    if (mode == mode_) {
        return;
    }
    mode_ = mode;
    Disarm();
    if (mode_ != 0) {
        Arm(moment);
    }
}

void Timer::Reset() {
    if (mode_ != 0) {
        Disarm();
        Arm(loop_.Milliseconds());
    }
}

void Timer::Arm(std::int64_t since) {
    const std::int64_t left = since + Period - loop_.Milliseconds();
    alarm_ = loop_.SetAlarm(static_cast<int>(std::clamp<std::int64_t>(left, 0, Period)), [this] { Fire(); });
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
        Arm(loop_.Milliseconds());
    }
    Action();
}

} // namespace tessarolyne

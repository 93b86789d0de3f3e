#include "platform/EventLoop.h"

#include <algorithm>
#include <exception>

namespace tessarolyne {

namespace {

thread_local Thread* current = nullptr;

} // namespace

Thread* Thread::Current() {
    return current;
}

void Thread::Start() {
    if (IsRunning()) {
        return;
    }
    isRunning_.store(true, std::memory_order_release);
    afterBody_.clear();
    try {
        thread_ = std::async(std::launch::async, [this] { Body(); });
    } catch (const std::exception& refusal) {
        isRunning_.store(false, std::memory_order_release);
        loop_.Post([this, reason = std::string(refusal.what())] { Failed(reason); });
    }
}

void Thread::Body() {
    current = this;
    try {
        Run();
    } catch (const std::exception& failure) {
        AfterBody([this, reason = std::string(failure.what())] { Failed(reason); });
    }
    current = nullptr;
    auto tasks = std::exchange(afterBody_, {});
    auto& loop = loop_;
    isRunning_.store(false, std::memory_order_release);
    // From here on the main thread may start the body again: nothing of `this` is touched any more.
    for (auto& task : tasks) {
        loop.Post(std::move(task));
    }
}

void Timer::SetMode(TimerMode mode) {
    if (Thread* thread = Thread::Current()) {
        thread->AfterBody([this, mode, now = loop_.Milliseconds()] { SetModeSince(now, mode); });
    } else {
        SetModeSince(loop_.Milliseconds(), mode);
    }
}

void Timer::SetModeSince(std::int64_t moment, TimerMode mode) {
    if (mode == mode_) {
        return;
    }
    mode_ = mode;
    Disarm();
    if (mode_ != TimerMode::Off) {
        Arm(moment);
    }
}

void Timer::Reset() {
    if (mode_ != TimerMode::Off) {
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
    if (mode_ == TimerMode::Single) {
        mode_ = TimerMode::Off;
    } else {
        Arm(loop_.Milliseconds());
    }
    Action();
}

} // namespace tessarolyne

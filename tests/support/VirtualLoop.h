#pragma once

#include "platform/Clock.h"
#include "platform/EventLoop.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <utility>

namespace tessarolyne::tests {

// A clock and an event loop whose time passes only when a test lets it, so that nothing ever sleeps. Tasks
// posted by real threads are taken like any other; where the loop has nothing to do but wait for one, it
// waits for real.
class VirtualLoop final : public EventLoop, public Clock {
public:
    std::int64_t Milliseconds() const override { return now_; }
    Date Now() const override { return today; }

    void Post(std::function<void()> task) override;
    AlarmId SetAlarm(int milliseconds, std::function<void()> task) override;
    void CancelAlarm(AlarmId alarm) override;
    void RunUntil(const std::function<bool()>& done) override;
    void WaitUntil(const std::function<bool()>& done) override;
    void DropInput() override {}
    void Quit(int exitCode) override;
    bool IsQuitting() const override { return quitting_; }

    // Lets that much time pass, with all that falls due in it.
    void Advance(int milliseconds);
    // Takes posted tasks and alarms, time passing as needed, until `done`. Fails the test if nothing is left
    // that could bring it about.
    void Until(const std::function<bool()>& done);

    int ExitCode() const { return exitCode_; }
    // Runs inside the next RunUntil, as the user's doing while a modal window is up.
    void WhileModal(std::function<void()> task) { modalTasks_.push_back(std::move(task)); }

    Date today{2026, 11, 22, 12, 0, 0};

private:
    bool TakePosted();
    bool RingNextAlarm(std::int64_t latest);

    mutable std::mutex mutex_;
    std::condition_variable posted_;
    std::deque<std::function<void()>> tasks_;
    std::deque<std::function<void()>> modalTasks_;
    std::map<std::pair<std::int64_t, AlarmId>, std::function<void()>> alarms_;
    std::atomic<std::int64_t> now_ = 1'000'000;
    AlarmId lastAlarm_ = 0;
    int exitCode_ = -1;
    bool quitting_ = false;
};

} // namespace tessarolyne::tests

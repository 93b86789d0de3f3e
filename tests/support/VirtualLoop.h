#pragma once

#include "platform/EventLoop.h"
#include "platform/Services.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <limits>
#include <map>
#include <mutex>
#include <thread>

namespace tessarolyne {

// A clock and an event loop whose time passes only when a test lets it, so that nothing ever sleeps. Tasks
// posted by real threads are taken like any other; where the loop has nothing to do but wait for one, it
// waits for real.
class VirtualLoop final : public EventLoop, public Clock {
public:
    std::int64_t Milliseconds() const override { return now_; }
    Date Now() const override { return today; }

    void Post(std::function<void()> task) override {
        const std::scoped_lock lock(mutex_);
        tasks_.push_back(std::move(task));
        posted_.notify_all();
    }
    AlarmId SetAlarm(int milliseconds, std::function<void()> task) override {
        alarms_[{now_ + milliseconds, ++lastAlarm_}] = std::move(task);
        return lastAlarm_;
    }
    void CancelAlarm(AlarmId alarm) override {
        std::erase_if(alarms_, [&](const auto& entry) { return entry.first.second == alarm; });
    }
    void RunUntil(const std::function<bool()>& done) override {
        while (!done() && !quitting_ && !modalTasks_.empty()) {
            TakeFrom(modalTasks_)();
        }
        Until(done);
    }
    void WaitUntil(const std::function<bool()>& done) override {
        const auto end = std::chrono::steady_clock::now() + patience;
        while (!done() && !quitting_) {
            now_ += 1;
            std::this_thread::yield();
            REQUIRE(std::chrono::steady_clock::now() < end);
        }
    }
    bool IsWaiting() const override { return false; }
    void DropInput() override {}
    void Quit(int exitCode) override {
        quitting_ = true;
        exitCode_ = exitCode;
    }
    bool IsQuitting() const override { return quitting_; }

    // Lets that much time pass, with all that falls due in it.
    void Advance(int milliseconds) {
        const std::int64_t end = now_ + milliseconds;
        while (RunPosted() || RingNextAlarm(end)) {
        }
        now_ = end;
    }
    // Takes posted tasks and alarms, time passing as needed, until `done`. Fails the test if nothing is left
    // that could bring it about.
    void Until(const std::function<bool()>& done) {
        while (!done() && !quitting_) {
            if (RunPosted() || RingNextAlarm(std::numeric_limits<std::int64_t>::max())) {
                continue;
            }
            std::unique_lock lock(mutex_);
            REQUIRE_MESSAGE(posted_.wait_for(lock, patience, [this] { return !tasks_.empty(); }),
                "nothing is left that could end the wait");
        }
    }

    int ExitCode() const { return exitCode_; }
    std::size_t Alarms() const { return alarms_.size(); }
    // Runs inside the next RunUntil, as the user's doing while a modal window is up.
    void WhileModal(std::function<void()> task) { modalTasks_.push_back(std::move(task)); }

    Date today{2026, 11, 22, 12, 0, 0};

private:
    using Tasks = std::deque<std::function<void()>>;

    // How long a real thread may compute before the test is given up.
    static constexpr auto patience = std::chrono::seconds(120);

    static std::function<void()> TakeFrom(Tasks& tasks) {
        auto task = std::move(tasks.front());
        tasks.pop_front();
        return task;
    }
    bool RunPosted() {
        std::unique_lock lock(mutex_);
        if (tasks_.empty()) {
            return false;
        }
        const auto task = TakeFrom(tasks_);
        lock.unlock();
        task();
        return true;
    }
    bool RingNextAlarm(std::int64_t latest) {
        if (alarms_.empty() || alarms_.begin()->first.first > latest) {
            return false;
        }
        auto alarm = alarms_.extract(alarms_.begin());
        now_ = std::max<std::int64_t>(now_, alarm.key().first);
        alarm.mapped()();
        return true;
    }

    mutable std::mutex mutex_;
    std::condition_variable posted_;
    Tasks tasks_;
    Tasks modalTasks_;
    std::map<std::pair<std::int64_t, AlarmId>, std::function<void()>> alarms_;
    std::atomic<std::int64_t> now_ = 1'000'000;
    AlarmId lastAlarm_ = 0;
    int exitCode_ = -1;
    bool quitting_ = false;
};

} // namespace tessarolyne

#include "support/VirtualLoop.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <chrono>
#include <thread>

namespace tessarolyne::tests {

namespace {

// How long a real thread may compute before the test is given up.
constexpr auto patience = std::chrono::seconds(120);

} // namespace

void VirtualLoop::Post(std::function<void()> task) {
    const std::scoped_lock lock(mutex_);
    tasks_.push_back(std::move(task));
    posted_.notify_all();
}

EventLoop::AlarmId VirtualLoop::SetAlarm(int milliseconds, std::function<void()> task) {
    alarms_[{now_ + milliseconds, ++lastAlarm_}] = std::move(task);
    return lastAlarm_;
}

void VirtualLoop::CancelAlarm(AlarmId alarm) {
    std::erase_if(alarms_, [&](const auto& entry) { return entry.first.second == alarm; });
}

bool VirtualLoop::TakePosted() {
    std::function<void()> task;
    {
        const std::scoped_lock lock(mutex_);
        if (tasks_.empty()) {
            return false;
        }
        task = std::move(tasks_.front());
        tasks_.pop_front();
    }
    task();
    return true;
}

bool VirtualLoop::RingNextAlarm(std::int64_t latest) {
    if (alarms_.empty() || alarms_.begin()->first.first > latest) {
        return false;
    }
    auto alarm = alarms_.extract(alarms_.begin());
    now_ = std::max<std::int64_t>(now_, alarm.key().first);
    alarm.mapped()();
    return true;
}

void VirtualLoop::Advance(int milliseconds) {
    const std::int64_t end = now_ + milliseconds;
    while (TakePosted() || RingNextAlarm(end)) {
    }
    now_ = end;
}

void VirtualLoop::Until(const std::function<bool()>& done) {
    while (!done() && !quitting_) {
        if (TakePosted()) {
            continue;
        }
        if (!alarms_.empty()) {
            RingNextAlarm(alarms_.begin()->first.first);
            continue;
        }
        std::unique_lock lock(mutex_);
        REQUIRE_MESSAGE(posted_.wait_for(lock, patience, [this] { return !tasks_.empty(); }),
            "nothing is left that could end the wait");
    }
}

void VirtualLoop::RunUntil(const std::function<bool()>& done) {
    while (!done() && !quitting_ && !modalTasks_.empty()) {
        auto task = std::move(modalTasks_.front());
        modalTasks_.pop_front();
        task();
    }
    Until(done);
}

void VirtualLoop::WaitUntil(const std::function<bool()>& done) {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!done() && !quitting_) {
        now_ += 1;
        std::this_thread::yield();
        REQUIRE(std::chrono::steady_clock::now() < end);
    }
}

void VirtualLoop::Quit(int exitCode) {
    quitting_ = true;
    exitCode_ = exitCode;
}

} // namespace tessarolyne::tests

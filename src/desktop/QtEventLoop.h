#pragma once

#include "platform/EventLoop.h"

#include <QObject>

#include <deque>
#include <functional>
#include <map>
#include <vector>

class QEventLoop;

namespace tessarolyne {

// The main thread's loop on Qt's. Posted tasks and alarms run one at a time from Qt's own events, so nothing
// wakes up while nothing happens. Needs a QCoreApplication.
class QtEventLoop final : public QObject, public EventLoop {
public:
    // Runs until Quit and returns its exit code; at once if the program quits already.
    int Run();

    std::int64_t Milliseconds() const override;
    void Post(std::function<void()> task) override;
    AlarmId SetAlarm(int milliseconds, std::function<void()> task) override;
    void CancelAlarm(AlarmId alarm) override { alarms_.erase(alarm); }
    void RunUntil(const std::function<bool()>& done) override;
    void WaitUntil(const std::function<bool()>& done) override;
    bool IsWaiting() const override { return waits_ > 0; }
    void DropInput() override;
    void Quit(int exitCode) override;
    bool IsQuitting() const override { return quitting_; }

private:
    void Take(std::function<void()> task);
    void RunNext();
    void Ring(AlarmId alarm);
    void EndWait();

    std::deque<std::function<void()>> due_; // more than one only after a wait, which holds them back
    std::map<AlarmId, std::function<void()>> alarms_;
    AlarmId lastAlarm_ = 0;
    std::vector<QEventLoop*> loops_;
    int waits_ = 0;
    int exitCode_ = 0;
    bool quitting_ = false;
};

} // namespace tessarolyne

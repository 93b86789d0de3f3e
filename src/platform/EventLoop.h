#pragma once

#include "platform/Event.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <future>
#include <string>
#include <vector>

namespace tessarolyne {

// The main thread's loop of events.
class EventLoop {
public:
    using AlarmId = std::uint64_t;

    virtual ~EventLoop() = default;

    // A steady count of milliseconds from an arbitrary start; callable from any thread.
    virtual std::int64_t Milliseconds() const = 0;

    // Runs `task` on the main thread soon; callable from any thread.
    virtual void Post(std::function<void()> task) = 0;

    // Runs `task` on the main thread once, after `milliseconds`. Main thread only.
    virtual AlarmId SetAlarm(int milliseconds, std::function<void()> task) = 0;
    // Takes an alarm back; nothing if it has rung.
    virtual void CancelAlarm(AlarmId alarm) = 0;

    // Goes on with events, the user's included, until `done`; returns at once when the program quits.
    virtual void RunUntil(const std::function<bool()>& done) = 0;

    // Waits until `done` without letting the user or any alarm or posted task in: windows are drawn and
    // answer the window manager. `done` is asked again every few milliseconds. Returns at once when the
    // program quits.
    virtual void WaitUntil(const std::function<bool()>& done) = 0;
    // Whether such a wait is under way: assistive technology gets in all the same.
    virtual bool IsWaiting() const = 0;
    // Forgets what the user typed and clicked while the program was busy or waited, which would otherwise be
    // done afterwards; a close box and the key that quits count all the same. Windows are drawn meanwhile and
    // answer the window manager.
    virtual void DropInput() = 0;

    // Ends the loop and all that RunUntil nested in it.
    virtual void Quit(int exitCode) = 0;
    virtual bool IsQuitting() const = 0;
};

// Runs one body at a time beside the main thread. The body must not touch controls; what it has to say it
// says through a Timer's Mode, which takes effect on the main thread when the body has been left for good.
class Thread {
public:
    explicit Thread(EventLoop& loop) : loop_(loop) {}
    // Waits for the body; raise its stop flag first.
    ~Thread() = default;
    Thread(const Thread&) = delete;
    Thread& operator=(const Thread&) = delete;

    // Starts the body; nothing if it runs. A thread that the system refuses fails like a body.
    void Start();
    // Whether the body has been started and not yet been left.
    bool IsRunning() const { return isRunning_.load(std::memory_order_acquire); }

    // The thread whose body the caller runs in, or null on any other thread.
    static Thread* Current();
    // From the body: runs `task` on the main thread after the body has been left.
    void AfterBody(std::function<void()> task) { afterBody_.push_back(std::move(task)); }

    Event<void()> Run;
    // On the main thread, with the reason: after a body that ended by an exception, or could not begin.
    Event<void(const std::string& reason)> Failed;

private:
    void Body();

    EventLoop& loop_;
    std::atomic<bool> isRunning_ = false;
    std::vector<std::function<void()>> afterBody_;
    std::future<void> thread_; // the last member: its end waits for the body, which uses the others
};

enum class TimerMode { Off, Single, Multiple };

// Gives `Action` on the main thread, once or again and again. A single timer is off again before its Action
// runs. The only timer property that a Thread's body may touch is Mode; what it assigns takes effect once the
// body has been left, the period counted from the assignment on.
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
        ModeProperty& operator=(TimerMode mode) {
            timer_.SetMode(mode);
            return *this;
        }
        operator TimerMode() const { return timer_.mode_; }

    private:
        Timer& timer_;
    };

    ModeProperty Mode;
    int Period; // milliseconds

    Event<void()> Action;

private:
    void SetMode(TimerMode mode);
    void SetModeSince(std::int64_t moment, TimerMode mode);
    void Arm(std::int64_t since);
    void Disarm();
    void Fire();

    EventLoop& loop_;
    TimerMode mode_ = TimerMode::Off;
    EventLoop::AlarmId alarm_ = 0;
};

} // namespace tessarolyne

#pragma once

#include <cstdint>
#include <functional>

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

} // namespace tessarolyne

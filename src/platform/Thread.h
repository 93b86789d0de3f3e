#pragma once

#include "platform/Event.h"
#include "platform/EventLoop.h"

#include <atomic>
#include <functional>
#include <future>
#include <string>
#include <vector>

namespace tessarolyne {

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

} // namespace tessarolyne

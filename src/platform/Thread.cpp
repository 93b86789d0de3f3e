#include "platform/Thread.h"

#include <exception>
#include <utility>

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
    } catch (...) {
        AfterBody([this] { Failed("unknown"); });
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

} // namespace tessarolyne

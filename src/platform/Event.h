#pragma once

#include <functional>
#include <utility>

namespace tessarolyne {

template <typename Signature>
class Event;

// The slot for the program's one handler of an event. Without a handler, giving the event does nothing and
// yields the result type's empty value.
template <typename Result, typename... Args>
class Event<Result(Args...)> {
public:
    Event& operator=(std::function<Result(Args...)> handler) {
        handler_ = std::move(handler);
        return *this;
    }

    Result operator()(Args... args) const {
        if (!handler_) {
            return Result();
        }
        const auto handler = handler_; // stays whole if the handler replaces itself
        return handler(std::forward<Args>(args)...);
    }

private:
    std::function<Result(Args...)> handler_;
};

} // namespace tessarolyne

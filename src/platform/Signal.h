#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tessarolyne {

// Holds one observer's place in a Signal and gives it up when it goes. It may outlive the signal.
using Connection = std::shared_ptr<const void>;

// Any number of observers of one fact. Observers may come and go while the signal is being given; it isn't
// for the program's own handlers, of which each control has one (see Event).
template <typename... Args>
class Signal {
public:
    [[nodiscard]] Connection Connect(std::function<void(Args...)> observer) {
        auto place = std::make_shared<Observer>(std::move(observer));
        observers_.push_back(place);
        return place;
    }

    void operator()(Args... args) {
        const auto present = observers_;
        for (const auto& place : present) {
            if (const auto observer = place.lock()) { // stays whole if it gives up its own place
                (*observer)(args...);
            }
        }
        std::erase_if(observers_, [](const auto& place) { return place.expired(); });
    }

private:
    using Observer = std::function<void(Args...)>;
    std::vector<std::weak_ptr<Observer>> observers_;
};

} // namespace tessarolyne

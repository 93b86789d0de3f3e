#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tessarolyne {

// Holds one observer's place in a Signal and gives it up when destroyed. It may outlive the signal.
class Connection {
public:
    Connection() = default;
    explicit Connection(std::shared_ptr<bool> alive) : alive_(std::move(alive)) {}
    ~Connection() { Disconnect(); }
    Connection(Connection&&) noexcept = default;
    Connection& operator=(Connection&& other) noexcept {
        if (this != &other) {
            Disconnect();
            alive_ = std::move(other.alive_);
        }
        return *this;
    }

    void Disconnect() {
        if (alive_) {
            *alive_ = false;
            alive_.reset();
        }
    }

private:
    std::shared_ptr<bool> alive_;
};

// Any number of observers of one fact. Observers may come and go while the signal is being given; it isn't
// for the program's own handlers, of which each control has one (see Event).
template <typename... Args>
class Signal {
public:
    [[nodiscard]] Connection Connect(std::function<void(Args...)> observer) {
        auto alive = std::make_shared<bool>(true);
        observers_.push_back(std::make_shared<Observer>(Observer{alive, std::move(observer)}));
        return Connection(std::move(alive));
    }

    void operator()(Args... args) {
        const auto present = observers_;
        for (const auto& observer : present) {
            if (*observer->alive) {
                observer->call(args...);
            }
        }
        std::erase_if(observers_, [](const auto& observer) { return !*observer->alive; });
    }

private:
    struct Observer {
        std::shared_ptr<bool> alive;
        std::function<void(Args...)> call;
    };
    std::vector<std::shared_ptr<Observer>> observers_;
};

} // namespace tessarolyne

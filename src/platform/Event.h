#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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

// Whoever has properties is told which of them changed, after the change.
class PropertyOwner {
public:
    PropertyOwner() = default;
    virtual ~PropertyOwner() = default;
    PropertyOwner(const PropertyOwner&) = delete;
    PropertyOwner& operator=(const PropertyOwner&) = delete;

private:
    template <typename T>
    friend class Property;
    virtual void PropertyChanged(const void* property) = 0;
};

// A value that is read and assigned by its name and tells its owner when an assignment changed it. Assigning
// the value that it already has does nothing.
template <typename T>
class Property {
public:
    explicit Property(PropertyOwner& owner, T value = T()) : owner_(owner), value_(std::move(value)) {}

    Property& operator=(T value) {
        if (!(value == value_)) {
            value_ = std::move(value);
            owner_.PropertyChanged(this);
        }
        return *this;
    }
    Property(const Property&) = delete;
    Property& operator=(const Property& other) { return *this = other.value_; }

    // Changes the value without telling the owner; for the owner's own use.
    void Assign(T value) { value_ = std::move(value); }

    operator const T&() const { return value_; }
    const T& operator()() const { return value_; }
    operator std::string_view() const requires std::same_as<T, std::string> { return value_; }

    friend bool operator==(const Property& property, const T& value) { return property.value_ == value; }

private:
    PropertyOwner& owner_;
    T value_;
};

} // namespace tessarolyne

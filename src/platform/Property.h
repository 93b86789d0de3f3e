#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

namespace tessarolyne {

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
    friend bool operator==(const Property& left, const Property& right) {
        return left.value_ == right.value_;
    }

private:
    PropertyOwner& owner_;
    T value_;
};

} // namespace tessarolyne

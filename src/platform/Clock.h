#pragma once

#include "platform/Date.h"

#include <cstdint>

namespace tessarolyne {

// What time it is. Safe to ask from any thread.
class Clock {
public:
    virtual ~Clock() = default;

    // A steady count of milliseconds from an arbitrary start.
    virtual std::int64_t Milliseconds() const = 0;

    // The user's local calendar and time of day.
    virtual Date Now() const = 0;

    // The same steady count in sixtieths of a second.
    std::int64_t Ticks() const { return Milliseconds() * 60 / 1000; }
};

} // namespace tessarolyne

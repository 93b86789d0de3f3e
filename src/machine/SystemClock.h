#pragma once

#include "platform/Clock.h"

namespace tessarolyne {

// The machine's own clock: CLOCK_MONOTONIC and the local time zone.
class SystemClock final : public Clock {
public:
    std::int64_t Milliseconds() const override;
    Date Now() const override;
};

} // namespace tessarolyne

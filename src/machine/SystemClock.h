#pragma once

#include "platform/Services.h"

#include <cstdint>
#include <filesystem>

namespace tessarolyne {

// The machine's own clock: CLOCK_MONOTONIC and the local time zone.
class SystemClock final : public Clock {
public:
    std::int64_t Milliseconds() const override;
    Date Now() const override;
};

// What the machine, the process's control groups (versions 1 and 2) and its resource limits leave: the least
// of them. Reads a dozen small files, some hundred microseconds; not for inner loops.
class SystemMemory final : public MemoryLimits {
public:
    // `root` holds the directories proc and sys.
    explicit SystemMemory(std::filesystem::path root = "/") : root_(std::move(root)) {}

    std::uint64_t AvailableBytes() const override;

private:
    std::filesystem::path root_;
};

// Terminate, hang-up and interrupt signals as something that an event loop can wait for: while the object
// lives, each makes the descriptor readable instead of ending the process. At most one object at a time.
class Signals {
public:
    // Throws std::system_error if the machine has no descriptors left.
    Signals();
    ~Signals();
    Signals(const Signals&) = delete;
    Signals& operator=(const Signals&) = delete;

    // Readable when a signal has come.
    int Descriptor() const;
    // The number of the oldest signal not yet taken; 0 if there is none.
    int Take();
};

} // namespace tessarolyne

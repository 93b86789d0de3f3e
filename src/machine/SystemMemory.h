#pragma once

#include "platform/MemoryLimits.h"

#include <cstdint>
#include <filesystem>
#include <limits>

namespace tessarolyne {

// What the machine, the process's control groups (versions 1 and 2) and its resource limits leave: the least
// of them. Reads a dozen small files, some hundred microseconds; not for inner loops.
class SystemMemory final : public MemoryLimits {
public:
    // `root` holds the directories proc and sys.
    explicit SystemMemory(std::filesystem::path root = "/") : root_(std::move(root)) {}

    std::uint64_t AvailableBytes() const override;

private:
    static constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

    std::uint64_t MachineBytes() const;
    std::uint64_t GroupBytes() const;
    std::uint64_t ResourceLimitBytes() const;

    std::filesystem::path root_;
};

} // namespace tessarolyne

#pragma once

#include <cstdint>

namespace tessarolyne {

// How much memory this process may still take. For what grows by the gigabyte and wants to end in order.
class MemoryLimits {
public:
    virtual ~MemoryLimits() = default;

    // Bytes that could be allocated and used now without swapping or hitting a limit; an estimate. 0 means
    // none.
    virtual std::uint64_t AvailableBytes() const = 0;
};

} // namespace tessarolyne

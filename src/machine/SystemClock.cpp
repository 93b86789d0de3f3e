#include "machine/SystemClock.h"

#include <chrono>
#include <ctime>

namespace tessarolyne {

std::int64_t SystemClock::Milliseconds() const {
    const auto since = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(since).count();
}

Date SystemClock::Now() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return Date{
        local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

} // namespace tessarolyne

#include "conversion/TypedBase.h"

#include "platform/Text.h"

namespace tessarolyne {

namespace {

constexpr std::int64_t soon = 1000;
constexpr int smallestBase = 2;
constexpr int largestBase = 36;

} // namespace

std::optional<int> TypedBase::Take(std::string_view key, std::int64_t now) {
    if (key.size() != 1 || !IsDigit(key[0])) {
        return {};
    }
    const int digit = key[0] - '0';
    const int both = now - typedAt_ <= soon ? first_ * 10 + digit : digit;
    const bool isSecond = both != digit && both <= largestBase;
    first_ = isSecond ? 0 : digit;
    typedAt_ = now;
    const int base = isSecond ? both : digit;
    return base >= smallestBase ? base : 0;
}

} // namespace tessarolyne

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tessarolyne {

// A base from 2 to 36 that is typed digit by digit: the second digit belongs to the first if it comes soon
// and makes a base with it.
class TypedBase {
public:
    // The base that the key gives at that time, in milliseconds: 0 while there is none yet, as after a 1.
    // Nothing if the key is no digit.
    std::optional<int> Take(std::string_view key, std::int64_t now);

private:
    int first_ = 0; // the digit that may be a first one
    std::int64_t typedAt_ = 0;
};

} // namespace tessarolyne

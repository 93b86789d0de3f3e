#pragma once

#include <cstdint>
#include <string>

namespace tessarolyne {

// A picture: a resource by its name, or an area of one colour (0xRRGGBB).
struct Picture {
    std::string Resource;
    int Width = 0;
    int Height = 0;
    std::uint32_t Fill = 0;

    bool operator==(const Picture&) const = default;
};

} // namespace tessarolyne

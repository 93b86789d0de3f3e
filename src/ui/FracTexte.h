#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessarolyne {

// Stands in a text for the user where a value goes.
inline constexpr std::string_view placeForValue = "¿%";

// The piece with this number, from 1, of a text cut at its places for values, all its blanks and line breaks
// included; nothing if it has no such piece. The message that is due then is left to the caller.
std::optional<std::string> TextPiece(std::string_view text, std::int64_t part);

} // namespace tessarolyne

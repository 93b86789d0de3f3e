#include "ui/FracTexte.h"

#include "platform/Text.h"

namespace tessarolyne {

std::optional<std::string> TextPiece(std::string_view text, std::int64_t part) {
    if (part < 1 || part > CountFields(text, placeForValue)) {
        return std::nullopt;
    }
    return NthField(text, placeForValue, part);
}

} // namespace tessarolyne

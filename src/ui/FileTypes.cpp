#include "ui/FileTypes.h"

#include <algorithm>

namespace tessarolyne::FileTypes {

const FileType* OfFilter(std::string_view filter) {
    const auto found = std::find_if(pAllFileTypes.begin(), pAllFileTypes.end(),
        [&](const FileType* type) { return type->Name == filter; });
    return found == pAllFileTypes.end() ? nullptr : *found;
}

} // namespace tessarolyne::FileTypes

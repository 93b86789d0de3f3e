#pragma once

#include <stdexcept>

namespace tessarolyne {

// A file operation that failed: raised where it arises, caught at the operation that the user asked for. Its
// text names the step and the file for a developer; users read the texts of the string table instead.
class IOException final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace tessarolyne

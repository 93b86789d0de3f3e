#pragma once

#include <iosfwd>
#include <optional>
#include <span>

namespace tessarolyne {

// Answers what stands behind the program's name on its command line: --help and --version go to `out`,
// anything else is an error and goes to `err`. Gives the status to end with; none if the window should open,
// as it also does with "-session ID", by which an X session restores a program. Needs no display.
std::optional<int> AnswerCommandLine(
    std::span<const char* const> arguments, std::ostream& out, std::ostream& err);

} // namespace tessarolyne

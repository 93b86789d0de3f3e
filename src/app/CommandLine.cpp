#include "app/CommandLine.h"

#include "app/Version.h"

#include <ostream>
#include <string_view>

namespace tessarolyne {

namespace {

// As the tools of the system have it.
constexpr int statusBadUse = 2;

// A full disk behind the redirection is a failure too.
int StatusOf(std::ostream& out) {
    return out.flush() ? 0 : 1;
}

} // namespace

std::optional<int> AnswerCommandLine(
    std::span<const char* const> arguments, std::ostream& out, std::ostream& err) {
    if (arguments.empty()) {
        return std::nullopt;
    }
    const std::string_view first = arguments.front();
    if (arguments.size() == 2 && first == "-session" && *arguments.back() != '\0') {
        return std::nullopt; // what an X session starts again
    }
    if (arguments.size() == 1 && (first == "--help" || first == "-h")) {
        out << "Usage: tessarolyne [--help | --version]\n"
            << description << ".\n"
            << "Without an option it opens its window.\n\n"
            << "  -h, --help     print this help and end\n"
            << "  -v, --version  print the version and end\n";
        return StatusOf(out);
    }
    if (arguments.size() == 1 && (first == "--version" || first == "-v")) {
        out << "Tessarolyne " << shortVersion << '\n';
        return StatusOf(out);
    }
    err << "tessarolyne: takes a single option, --help or --version, not “" << first
        << (arguments.size() > 1 ? " …" : "") << "”\n";
    return statusBadUse;
}

} // namespace tessarolyne

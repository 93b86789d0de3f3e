#include "app/CommandLine.h"

#include "ui/Version.h"

#include <ostream>
#include <string_view>

namespace tessarolyne {

constexpr int statusBadUse = 2; // as the tools of the system have it

std::optional<int> AnswerCommandLine(
    std::span<const char* const> arguments, std::ostream& out, std::ostream& err) {
    if (arguments.empty()) {
        return std::nullopt;
    }
    const std::string_view first = arguments.front();
    if (arguments.size() == 2 && first == "-session" && *arguments.back() != '\0') {
        return std::nullopt; // what an X session starts again
    }
    const bool isAlone = arguments.size() == 1;
    if (isAlone && (first == "--help" || first == "-h")) {
        out << "Usage: tessarolyne [--help | --version]\n"
            << description << ".\n"
            << "Without an option it opens its window.\n\n"
            << "  -h, --help     print this help and end\n"
            << "  -v, --version  print the version and end\n";
    } else if (isAlone && (first == "--version" || first == "-v")) {
        out << "Tessarolyne " << shortVersion << '\n';
    } else {
        err << "tessarolyne: takes a single option, --help or --version, not “" << first
            << (isAlone ? "" : " …") << "”\n";
        return statusBadUse;
    }
    return out.flush() ? 0 : 1; // a full disk behind the redirection is a failure too
}

} // namespace tessarolyne

#include "app/CommandLine.h"
#include "ui/Version.h"

#include <doctest/doctest.h>

#include <sstream>
#include <vector>

using namespace tessarolyne;

TEST_CASE("Help and version are printed, a session opens the window, any other argument is refused by name") {
    const std::string help = "Usage: tessarolyne";
    const std::string version = std::string("Tessarolyne ") + shortVersion + "\n";
    const struct {
        std::vector<const char*> arguments;
        std::optional<int> status;
        std::string out = {}; // its beginning
        bool full = false;    // the disk behind the redirection
    } rows[] = {{{}, std::nullopt}, {{"-session", "10ab_12"}, std::nullopt}, {{"-h"}, 0, help},
        {{"--help"}, 0, help}, {{"-v"}, 0, version}, {{"--version"}, 0, version},
        {{"--version"}, 1, version, true}, {{"255"}, 2}, {{""}, 2}, {{"--versions"}, 2}, {{"-session"}, 2},
        {{"-session", ""}, 2}, {{"-session", "a", "b"}, 2}, {{"-platform", "xcb"}, 2},
        {{"--help", "255"}, 2}};
    for (const auto& row : rows) {
        CAPTURE((row.arguments.empty() ? "" : row.arguments.front()));
        std::ostringstream out;
        std::ostringstream err;
        out.setstate(row.full ? std::ios::badbit : std::ios::goodbit);
        CHECK(AnswerCommandLine(row.arguments, out, err) == row.status);
        CHECK((row.full || (out.str().starts_with(row.out) && out.str().empty() == row.out.empty())));
        CHECK(err.str().empty() == (row.status != 2));
        CHECK((row.status != 2 || err.str().find(row.arguments.front()) != std::string::npos));
    }
}

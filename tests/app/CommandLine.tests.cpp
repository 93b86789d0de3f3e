#include "app/CommandLine.h"
#include "app/Version.h"

#include <doctest/doctest.h>

#include <sstream>
#include <string>
#include <vector>

using namespace tessarolyne;

TEST_CASE("Help and version are printed, any other argument is refused by name, and none opens the window") {
    const std::string help = "Usage: tessarolyne";
    const std::string version = std::string("Tessarolyne ") + shortVersion + "\n";
    struct Case {
        std::vector<const char*> arguments;
        std::optional<int> status;
        std::string out; // its beginning
    };
    const Case cases[] = {
        {{}, std::nullopt, ""},
        {{"-session", "10ab_12"}, std::nullopt, ""},
        {{"-session"}, 2, ""},
        {{"-session", "a", "b"}, 2, ""},
        {{"-h"}, 0, help},
        {{"--help"}, 0, help},
        {{"-v"}, 0, version},
        {{"--version"}, 0, version},
        {{"255"}, 2, ""},
        {{""}, 2, ""},
        {{"--Help"}, 2, ""},
        {{"--versions"}, 2, ""},
        {{"-platform", "xcb"}, 2, ""},
        {{"--help", "255"}, 2, ""},
        {{"--version", "255"}, 2, ""},
    };
    for (const Case& c : cases) {
        CAPTURE((c.arguments.empty() ? "" : c.arguments.front()));
        std::ostringstream out;
        std::ostringstream err;
        CHECK(AnswerCommandLine(c.arguments, out, err) == c.status);
        CHECK(out.str().starts_with(c.out));
        CHECK(out.str().empty() == c.out.empty());
        CHECK(err.str().empty() == (c.status != 2));
        CHECK((c.status != 2 || err.str().find(c.arguments.front()) != std::string::npos));
    }
}

TEST_CASE("An answer that can't be written is a failure") {
    std::ostringstream out;
    std::ostringstream err;
    out.setstate(std::ios::badbit);
    CHECK(AnswerCommandLine(std::vector{"--version"}, out, err) == 1);
}

#include "app/CommandLine.h"
#include "app/Version.h"

#include <doctest/doctest.h>

#include <sstream>
#include <string>
#include <vector>

using namespace tessarolyne;

namespace {

struct Answer {
    std::optional<int> status;
    std::string out;
    std::string err;
};

Answer AnswerTo(const std::vector<const char*>& arguments) {
    std::ostringstream out;
    std::ostringstream err;
    const auto status = AnswerCommandLine(arguments, out, err);
    return {status, out.str(), err.str()};
}

} // namespace

TEST_CASE("Without an argument the window opens, and nothing is printed") {
    const Answer answer = AnswerTo({});
    CHECK_FALSE(answer.status.has_value());
    CHECK((answer.out + answer.err).empty());
}

TEST_CASE("Help and version are printed, and the program ends well") {
    for (const char* option : {"-h", "--help"}) {
        CAPTURE(option);
        CHECK(AnswerTo({option}).status == 0);
        CHECK(AnswerTo({option}).out.starts_with("Usage: tessarolyne"));
    }
    for (const char* option : {"-v", "--version"}) {
        CAPTURE(option);
        CHECK(AnswerTo({option}).status == 0);
        CHECK(AnswerTo({option}).out == "Tessarolyne " + std::string(shortVersion) + "\n");
    }
}

TEST_CASE("Any other argument is refused by name, on the error output alone") {
    for (const auto& arguments : {std::vector<const char*>{"255"}, {""}, {"--Help"}, {"--versions"},
             {"-platform", "xcb"}, {"--help", "255"}, {"--version", "255"}}) {
        CAPTURE(arguments.front());
        const Answer answer = AnswerTo(arguments);
        CHECK(answer.status == 2);
        CHECK(answer.out.empty());
        CHECK(answer.err.find(arguments.front()) != std::string::npos);
    }
}

TEST_CASE("An answer that can't be written is a failure") {
    std::ostringstream out;
    std::ostringstream err;
    out.setstate(std::ios::badbit);
    CHECK(AnswerCommandLine(std::vector{"--version"}, out, err) == 1);
}

#include "words/EnglishWords.h"

#include <doctest/doctest.h>

#include <string>
#include <vector>

using namespace tessarolyne;

namespace {

struct Example {
    std::string number;
    std::string words;
};

const std::vector<Example> examples = {
    {"0", "zero "},
    {"13", "thirteen "},
    {"20", "twenty "},
    {"21", "twenty one "},
    {"100", "one hundred "},
    {"101", "one hundred and one "},
    {"1000", "one thousand "},
    {"1001", "one thousand and one "},
    {"1100", "one thousand one hundred "},
    {"21021", "twenty one thousand and twenty one "},
    {"101000", "one hundred and one thousand "},
    {"1000001", "one million and one "},
    {"1000100", "one million one hundred "},
    {"1021000", "one million twenty one thousand "},
    {"2000000", "two million "},
    {"999999999", "nine hundred and ninety nine million nine hundred and ninety nine thousand nine hundred "
                  "and ninety nine "},
};

} // namespace

TEST_CASE("English numbers are spelled as in the examples") {
    for (const Example& example : examples) {
        CAPTURE(example.number);
        CHECK(ConvNbreLettresEn(example.number, "too large") == example.words);
    }
}

TEST_CASE("A group above 999 is reported, however large") {
    std::vector<std::string> reports;
    const ErrorReport report = [&](std::string_view text) { reports.emplace_back(text); };
    CHECK(Century("999", 0, 0, report) == "nine hundred and ninety nine");
    CHECK(reports.empty());
    CHECK(Century("1000", 0, 0, report) == "### Error ###");
    CHECK(Century("99999999999999999999999", 0, 0, report) == "### Error ###");
    CHECK(reports == std::vector<std::string>(2, "Century, hNbre : Less than 1000 please !"));
}

TEST_CASE("Nine digits are spelled in English and ten give the message as it is") {
    CHECK(ConvNbreLettresEn("100000000", "too large") == "one hundred million ");
    CHECK(ConvNbreLettresEn("1000000000", "too large") == "too large");
}

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
    {"1", "one "},
    {"5", "five "},
    {"10", "ten "},
    {"13", "thirteen "},
    {"20", "twenty "},
    {"21", "twenty one "},
    {"42", "forty two "},
    {"99", "ninety nine "},
    {"100", "one hundred "},
    {"101", "one hundred and one "},
    {"110", "one hundred and ten "},
    {"121", "one hundred and twenty one "},
    {"200", "two hundred "},
    {"201", "two hundred and one "},
    {"999", "nine hundred and ninety nine "},
    {"1000", "one thousand "},
    {"1001", "one thousand and one "},
    {"1010", "one thousand and ten "},
    {"1021", "one thousand and twenty one "},
    {"1100", "one thousand one hundred "},
    {"1101", "one thousand one hundred and one "},
    {"2000", "two thousand "},
    {"10000", "ten thousand "},
    {"21021", "twenty one thousand and twenty one "},
    {"100000", "one hundred thousand "},
    {"100001", "one hundred thousand and one "},
    {"100100", "one hundred thousand one hundred "},
    {"101000", "one hundred and one thousand "},
    {"121121", "one hundred and twenty one thousand one hundred and twenty one "},
    {"1000000", "one million "},
    {"1000001", "one million and one "},
    {"1000100", "one million one hundred "},
    {"1001000", "one million one thousand "},
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

TEST_CASE("Only the last of several groups takes its own and") {
    CHECK(Century("021", 0, 0) == "twenty one");
    CHECK(Century("021", 1, 0) == "twenty one");
    CHECK(Century("021", 1, 1) == "and twenty one");
    CHECK(Century("121", 1, 1) == "one hundred and twenty one");
    CHECK(Century("100", 1, 1) == "one hundred");
    CHECK(Century("000", 1, 1).empty());
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

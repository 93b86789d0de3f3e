#include "conversion/PastedNumber.h"

#include <doctest/doctest.h>

#include <string>
#include <utility>

using namespace tessarolyne;

TEST_CASE("A number as people write it becomes digits with a point") {
    const std::pair<const char*, const char*> cases[] = {
        {"1\u00A0234\u202F567\u2009890", "1234567890"},
        {"1\u3000234\t567", "1234567"},
        {"1'234'567.89", "1234567.89"},
        {"1’234,5", "1234.5"},
        {"1,234,567", "1234567"},
        {"1,234.50", "1234.50"},
        {"1.234,50", "1234.50"},
        {"1 234,5", "1234.5"},
        {"12,345", "12345"},
        {"12,34", "12.34"},
        {"0,5", "0.5"},
        {",5", ".5"},
        {",", "."},
        {"12,", "12."},
        {"0,125", "0.125"},
        {"1234,567", "1234.567"},
        {"1.234,567", "1234.567"},
        {" \n1 234,56\r\n", "1234.56"},
        {"12\n345", "12345"},
        {"-1.234,50", "-1234.50"},
        {"\u22121 234", "-1234"},
        {"12 , 50", "12.50"},
        {"1 234,56 €", "1234.56"},
        {"€ -1,234.56", "-1234.56"},
        {"Fr. 12.50", "12.50"},
        {"$.50", ".50"},
        {"12.–", "12."},
    };
    for (const auto& [pasted, expected] : cases) {
        CAPTURE(pasted);
        CHECK(NumberAsWritten(pasted) == expected);
    }
}

TEST_CASE("What is no such number, or could be two, stays as it is") {
    for (const char* text : {"", " ", "\n", "abc", ".", "1.2.3", "1,23,456", "1,234,50", "1,234,567.8.9",
             "1-2", "1''2", "1,'23", "\xC2", "FF FF", "1 € 2", "1,234 .567,8"}) {
        CAPTURE(text);
        CHECK(NumberAsWritten(text) == text);
    }
}

TEST_CASE("Digits keep their blanks as plain ones and lose their line ends") {
    CHECK(DigitsAsPasted("FF\u00A0FF\u202F0\t1\r\n") == "FF FF 0 1");
    CHECK(DigitsAsPasted("a\nb\u2028c\u0085d") == "abcd");
    CHECK(DigitsAsPasted("é\xC2'\u200B,") == "é\xC2'\u200B,");
}

TEST_CASE("A megabyte is read like a short text") {
    const std::string ones(1 << 20, '1');
    CHECK(NumberAsWritten("1 " + ones + ",5") == "1" + ones + ".5");
    CHECK(DigitsAsPasted(std::string(1 << 20, '\t')) == std::string(1 << 20, ' '));
}

#include "platform/Text.h"

#include <doctest/doctest.h>

#include <limits>
#include <string>
#include <vector>

using namespace tessarolyne;

namespace {

constexpr auto least = std::numeric_limits<std::int64_t>::min();
constexpr auto most = std::numeric_limits<std::int64_t>::max();

} // namespace

TEST_CASE("Characters are code points; a byte of no UTF-8 is one of its own, and is replaced for showing") {
    const std::string r = "\uFFFD";
    const struct {
        std::string text;
        std::int64_t length;
        std::string shown;
    } rows[] = {
        {"aé€😀", 4, "aé€😀"},
        {"\uD7FF\uE000", 2, "\uD7FF\uE000"},
        {"\xF4\x8F\xBF\xBF", 1, "\xF4\x8F\xBF\xBF"}, // U+10FFFF
        {"\xE2\x82x", 3, r + r + "x"},
        {"\xC0\xAF", 2, r + r},                 // overlong
        {"\xE0\x9F\xBF", 3, r + r + r},         // overlong
        {"\xED\xA0\x80", 3, r + r + r},         // a surrogate
        {"\xF4\x90\x80\x80", 4, r + r + r + r}, // above U+10FFFF
        {"\xF8\x88\x80\x80\x80", 5, r + r + r + r + r},
    };
    for (const auto& row : rows) {
        CHECK(Len(row.text) == row.length);
        CHECK(WithoutInvalidUtf8(row.text) == row.shown);
    }
}

TEST_CASE("Mid and Left count characters and take any position; Split leaves no piece out") {
    CHECK(Mid("aé€😀", 2, 2) == "é€");
    CHECK(Split(";a;;b;", ";") == std::vector<std::string_view>{"", "a", "", "b", ""});
    CHECK(ReplaceAll("--a---", "--", "+++") == "+++a+++-");
    for (const std::int64_t outside : {std::int64_t{4}, most}) {
        CHECK(Mid("abc", outside) == "");
        CHECK(Mid("abc", 2, outside) == "bc");
        CHECK(Left("abc", outside) == "abc");
    }
    for (const std::int64_t none : {std::int64_t{0}, least}) {
        CHECK(Mid("abc", none) == "abc");
        CHECK(Left("abc", none) == "");
    }
}

TEST_CASE("Every letter of the Latin blocks that has its capital there gets it") {
    CHECK(Uppercase("straße, élan ñ ÿ ÷ œuvre ž") == "STRAßE, ÉLAN Ñ Ÿ ÷ ŒUVRE Ž");
    CHECK(Uppercase("àþāįķĺŀńňŋŭŷźī") == "ÀÞĀĮĶĹĿŃŇŊŬŶŹĪ");
    for (const std::string unchanged : {"ıſĸŉ\xC3", "1`{µßƀ€д😀ÀÞĀĶĹŇŊŶŽŸ"}) {
        CHECK(Uppercase(unchanged) == unchanged);
    }
    CHECK(Uppercase(std::string_view("été").substr(0, 4)) == "ÉT\xC3"); // what follows the view isn't read
}

TEST_CASE("Each line end is replaced once, and an address holds every byte") {
    CHECK(ReplaceLineEndings("a\r\nb\rc\nd\n\re\r", "|") == "a|b|c|d||e|");
    CHECK(EncodeURLComponent("aZ09-._~ &=?/@g%+é\xFF\n") == "aZ09-._~%20%26%3D%3F%2F%40g%25%2B%C3%A9%FF%0A");
}

#include "platform/Numbers.h"
#include "platform/Text.h"

#include <doctest/doctest.h>

#include <cfloat>
#include <clocale>
#include <locale>

using namespace tessarolyne;

namespace {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr const char* grouped = "-###\\ ###\\ ###\\ ###\\ ###\\ ##0";
constexpr const char* plain = "-#################0";
constexpr const char* plainCents = "-#################0.00";

struct CommaAsPoint final : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
};

struct ValueOfText {
    std::string text;
    double value;
};

} // namespace

TEST_CASE("A number has a sign, digits around at most one point, and blanks anywhere") {
    for (const auto& [text, value] :
        std::initializer_list<ValueOfText>{{"12.", 12}, {".5", 0.5}, {"-1", -1}, {"+1.5", 1.5},
            {" 1 234.50 ", 1234.5}, {"- 1 2", -12}, {"007", 7}, {"9007199254740993", 9007199254740992},
            {"9007199254740993.0000000000000000000001", 9007199254740994}}) {
        CAPTURE(text);
        CHECK(IsNumeric(text));
        CHECK(CDbl(text) == value);
    }
    for (const char* text :
        {"", " ", ".", "-", "+.", "1.2.3", "1,5", "0x10", "nan", "inf", "-inf", "1e3", "1E-3", "1 e 3", "e3",
            "--1", "1-", "1\u00A0234", "1\t2", "12a", "٣", "\xFF", "#Erreur Nbre !"}) {
        CAPTURE(text);
        CHECK_FALSE(IsNumeric(text));
        CHECK(CDbl(text) == 0);
    }
    CHECK_FALSE(IsNumeric(std::string_view("1\0", 2)));
}

TEST_CASE("Val reads the number at the start; too large a one is the largest double, too small a one 0") {
    const std::string zeros(5000, '0');
    const std::string widest(23, '9');
    CHECK(CDbl("-1" + zeros) == -DBL_MAX);
    CHECK(CDbl("0." + zeros + "1") == 0);
    for (const std::string& large : {std::string("1e309"), "0." + zeros + "1e9000", "1" + zeros,
             "1e" + widest, "1" + zeros + "e-4000", std::string("17976931348623159e292")}) {
        CHECK(Val(large) == DBL_MAX);
        CHECK(Val("-" + large) == -DBL_MAX);
    }
    for (const std::string& small : {std::string("1e-400"), "0." + zeros + "1", "0e" + widest, "1e-" + widest,
             "1" + zeros + "e-9000", "0" + zeros}) {
        CHECK(Val(small) == 0);
    }
    for (const auto& [text, value] : std::initializer_list<ValueOfText>{{"  12.5 euros", 12.5}, {"1 234", 1},
             {"1e2x", 100}, {"", 0}, {"a1", 0}, {".", 0}, {"-", 0}, {"\t1", 0}, {"e5", 0},
             {"1" + zeros + "e-5000", 1}}) { // what follows the number is let go
        CAPTURE(text);
        CHECK(Val(text) == value);
    }
    CHECK(Val("0." + zeros + "1e5001") == 1);
}

TEST_CASE(
    "Format gives each digit its place, loses none, and rounds the exact value, a half away from zero") {
    const struct {
        double value;
        std::string mask;
        std::string text;
    } rows[] = {
        {1234567, grouped, "1 234 567"},
        {1234.5, std::string(grouped) + ".00", "1 234.50"},
        {-123, grouped, "-123"},
        {-0.5, plain, "-1"},
        {0, "###", ""},
        {-7, "0.00", "7.00"},
        {1234, "###", "1234"},
        {1e18, grouped, "1000 000 000 000 000 000"},
        {1e23, plain, "99999999999999991611392"},
        {-infinity, plainCents, "-" + Format(DBL_MAX, plain) + ".00"},
        {notANumber, plain, "0"},
        {1.005, plainCents, "1.00"}, // the double is a little below
        {8.345, plainCents, "8.35"}, // this one a little above
        {-0.004, plainCents, "0.00"},
        {0.125, plainCents, "0.13"},
        {99.995, plainCents, "100.00"}, // a little above, as the carry shows
        {5e-324, plainCents, "0.00"},
    };
    for (const auto& row : rows) {
        CHECK(Format(row.value, row.mask) == row.text);
    }
    CHECK(Format(DBL_MAX, plain).size() == 309);
}

TEST_CASE("Conversions to integers cut the fraction and stop at the type's ends") {
    CHECK(ToUInt64(2.9) == 2);
    CHECK(ToUInt64(-0.9) == 0);
    CHECK(ToUInt64(18446744073709551616.0) == std::numeric_limits<std::uint64_t>::max());
    CHECK(ToInt16(32768) == 32767);
    CHECK(ToInt16(-32768.5) == -32768);
    CHECK(ToInt16(-2.9) == -2);
    CHECK(ToInt32(-1e300) == std::numeric_limits<std::int32_t>::min());
    CHECK((ToUInt64(notANumber) == 0 && ToInt16(notANumber) == 0 && ToInt32(notANumber) == 0));
}

TEST_CASE("The locale of the process changes nothing") {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const std::locale streams = std::locale::global(std::locale(std::locale(), new CommaAsPoint));
    for (const char* name : {"C", "de_DE.UTF-8", "fr_FR.UTF-8"}) {
        std::setlocale(LC_ALL, name); // where the machine has it
        CHECK((CDbl("1.5") == 1.5 && Val("1,5") == 1));
        CHECK(Format(1234.5, "0.00") == "1234.50");
    }
    std::locale::global(streams);
    std::setlocale(LC_ALL, before.c_str());
}

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
    for (const std::int64_t outside : {std::int64_t{4}, std::numeric_limits<std::int64_t>::max()}) {
        CHECK(Mid("abc", outside) == "");
        CHECK(Mid("abc", 2, outside) == "bc");
        CHECK(Left("abc", outside) == "abc");
    }
    for (const std::int64_t none : {std::int64_t{0}, std::numeric_limits<std::int64_t>::min()}) {
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

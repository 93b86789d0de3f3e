#include "platform/Text.h"
#include "platform/Utf8.h"

#include <doctest/doctest.h>

#include <limits>
#include <random>
#include <string>
#include <vector>

using namespace tessarolyne;

namespace {

constexpr auto least = std::numeric_limits<std::int64_t>::min();
constexpr auto most = std::numeric_limits<std::int64_t>::max();

// Texts that mix every length of sequence with pieces of sequences.
std::string RandomText(std::mt19937& random) {
    static const std::vector<std::string> pieces = {"a", "B", " ", "é", "É", "Ÿ", "€", "😀", "\u0301", "\x80",
        "\xC3", "\xE2\x82", "\xF0\x9F\x98", "\xFF", std::string(1, '\0')};
    std::string text;
    for (std::size_t n = random() % 12; n > 0; --n) {
        text += pieces[random() % pieces.size()];
    }
    return text;
}

} // namespace

TEST_CASE("Characters are code points, and a byte that is no UTF-8 is one of its own") {
    CHECK(Len("aé€😀") == 4);
    CHECK(Len("e\u0301") == 2);
    CHECK(Len("\xE2\x82"
              "a") == 3);
    CHECK(Len("\xC0\xAF") == 2);         // overlong
    CHECK(Len("\xED\xA0\x80") == 3);     // a surrogate
    CHECK(Len("\xF4\x90\x80\x80") == 4); // above U+10FFFF
    CHECK(Len("\xF8\x88\x80\x80\x80") == 5);
    CHECK(Len("\xF4\x8F\xBF\xBF") == 1);                                // U+10FFFF
    CHECK(Uppercase(std::string_view("été").substr(0, 4)) == "ÉT\xC3"); // what follows the view isn't read
}

TEST_CASE("Mid, Left and Right count characters and take any position") {
    CHECK(Mid("aé€😀", 2, 2) == "é€");
    CHECK(Mid("aé€😀", 3) == "€😀");
    CHECK(Left("€uro", 1) == "€");
    for (const std::int64_t outside : {std::int64_t{4}, most}) {
        CHECK(Mid("abc", outside) == "");
        CHECK(Mid("abc", 2, outside) == "bc");
        CHECK(Left("abc", outside) == "abc");
        CHECK(Right("abc", outside) == "abc");
    }
    for (const std::int64_t none : {std::int64_t{0}, least}) {
        CHECK(Mid("abc", none) == "abc");
        CHECK(Left("abc", none) == "");
        CHECK(Right("abc", none) == "");
    }
}

TEST_CASE("Any text is put together again from its parts, byte for byte") {
    std::mt19937 random(1);
    for (int round = 0; round < 5000; ++round) {
        const std::string text = RandomText(random);
        const std::int64_t count = Len(text);
        const std::int64_t cut = static_cast<std::int64_t>(random() % 14);
        REQUIRE(Left(text, cut) + Mid(text, cut + 1) == text);
        REQUIRE(Mid(text, 1, count - cut) + Right(text, cut) == text);
        REQUIRE(ReplaceAll(ReplaceAll(text, "a", "[a]"), "[a]", "a") == text);
        std::string joined = NthField(text, "B", 1);
        for (std::int64_t field = 2; field <= CountFields(text, "B"); ++field) {
            joined += "B" + NthField(text, "B", field);
        }
        REQUIRE(joined == text);
        REQUIRE(Len(Uppercase(text)) == count);
    }
}

TEST_CASE("InStr finds what a search at every position finds, whatever the case") {
    CHECK(InStr("ABCDEF", "d") == 4);
    CHECK(InStr("l'été", "ÉTÉ") == 3);
    CHECK(InStr("aŸ", "ÿ") == 2);
    CHECK(InStr(3, "abab", "AB") == 3);
    CHECK(InStr(4, "abab", "ab") == 0);
    CHECK(InStr("abc", "") == 1);
    CHECK(InStr(5, "abc", "") == 0);
    CHECK(InStr("IS", "ı") == 0); // its capital is I, but it is another digit of no base
    std::mt19937 random(2);
    for (int round = 0; round < 3000; ++round) {
        const std::string text = RandomText(random) + RandomText(random);
        const std::string find = Mid(
            text, 1 + static_cast<std::int64_t>(random() % 9), 1 + static_cast<std::int64_t>(random() % 3));
        std::int64_t expected = find.empty() ? 1 : 0;
        for (std::int64_t at = 1; expected == 0 && at <= Len(text); ++at) {
            expected = Uppercase(Mid(text, at, Len(find))) == Uppercase(find) ? at : 0;
        }
        REQUIRE(InStr(text, find) == expected);
    }
}

TEST_CASE("Fields are numbered from 1 and keep what stands between the delimiters") {
    CHECK(CountFields("", ";") == 1);
    CHECK(CountFields("a;;b;", ";") == 4);
    CHECK(NthField("a;;b;", ";", 3) == "b");
    CHECK(NthField("a;b", ";", 0) == "");
}

TEST_CASE("Blanks are trimmed, other white space isn't") {
    CHECK(LTrim("  a ") == "a ");
    CHECK(Trim("  a b ") == "a b");
    CHECK(LTrim("\ta") == "\ta");
    CHECK(Trim("\u00A0a\n") == "\u00A0a\n");
    CHECK(Trim("   ") == "");
}

TEST_CASE("Every letter of the Latin blocks that has its capital there gets it") {
    CHECK(Uppercase("straße, élan ñ ÿ ÷ œuvre ž") == "STRAßE, ÉLAN Ñ Ÿ ÷ ŒUVRE Ž");
    CHECK(Uppercase("ıſĸŉ\xC3") == "ıſĸŉ\xC3");
    CHECK(Uppercase("àþāįķĺŀńňŋŭŷźī") == "ÀÞĀĮĶĹĿŃŇŊŬŶŹĪ");
    CHECK(Uppercase("1`{µßƀ€д😀ÀÞĀĶĹŇŊŶŽŸ") == "1`{µßƀ€д😀ÀÞĀĶĹŇŊŶŽŸ");
}

TEST_CASE("Chr gives any code point and never an invalid text") {
    CHECK(Chr(0) == std::string(1, '\0'));
    CHECK(Chr(0x20AC) == "€");
    CHECK(Chr(0x1F600) == "😀");
    for (const std::int64_t code :
        {std::int64_t{-1}, std::int64_t{0xD800}, std::int64_t{0x110000}, least, most}) {
        CHECK(Chr(code) == "\uFFFD");
    }
}

TEST_CASE("Each kind of line end becomes the wanted one, once") {
    CHECK(ReplaceLineEndings("a\r\nb\rc\nd\n\re\r", "|") == "a|b|c|d||e|");
}

TEST_CASE("A text built to make a search slow is searched in a time that grows with its length only") {
    // A search that begins anew at each position would compare more than 10 to the power 11 characters here.
    const std::string text(1'000'000, 'a');
    CHECK(InStr(text + "b", std::string(300'000, 'a') + "b") == 700'001);
}

TEST_CASE("A text in an address keeps only the characters that mean themselves there") {
    CHECK(EncodeURLComponent("aZ09-._~") == "aZ09-._~");
    CHECK(EncodeURLComponent("a b&c=d?e/f@g%+") == "a%20b%26c%3Dd%3Fe%2Ff%40g%25%2B");
    CHECK(EncodeURLComponent("é\xFF\n") == "%C3%A9%FF%0A");
}

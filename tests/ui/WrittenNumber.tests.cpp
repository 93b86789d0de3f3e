#include "ui/WrittenNumber.h"
#include "conversion/BaseConversion.h"
#include "platform/Text.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

namespace {

const Mask amount("999999999999.99");
constexpr DecimalSign comma = DecimalSign::Comma;
constexpr DecimalSign point = DecimalSign::Point;

// A number field, with the caret at its end.
struct Field {
    DecimalSign sign;
    std::string text = {};
    NumberTyping typing = {};
    int refusals = 0;

    void Insert(const std::string& inserted) {
        TextEdit edit{text, static_cast<int>(Len(text)), 0, inserted};
        if (typing.Take(edit, amount, sign) != NumberTyping::Refusal::None) {
            ++refusals;
            return;
        }
        text =
            Left(edit.before, edit.start) + edit.inserted + Mid(edit.before, edit.start + edit.removed + 1);
    }
    void Type(const std::string& keys) {
        for (const char key : keys) {
            Insert(std::string(1, key));
        }
    }
};

// The text of the field after a paste; "no" for one that was refused.
std::string Pasted(const std::string& pasted, DecimalSign sign) {
    Field field{sign};
    field.Insert(pasted);
    return field.refusals > 0 ? "no" : field.text;
}

std::string DigitsOf(std::string text) {
    std::erase_if(text, [](char c) { return c < '0' || c > '9'; });
    return text;
}

// Typed and pasted, the text is the same number, or a refusal is heard; and no digit is lost or changed.
void CheckBothWays(const std::string& text, DecimalSign sign) {
    CAPTURE(text);
    Field typed{sign};
    typed.Type(text);
    const std::string pasted = Pasted(text, sign);
    const bool isNumber = amount.Holds(typed.text);
    if (typed.refusals == 0) {
        REQUIRE(isNumber == (pasted != "no"));
        REQUIRE((!isNumber || typed.text == pasted));
        REQUIRE(DigitsOf(typed.text) == DigitsOf(text));
    }
    if (pasted != "no") {
        const std::string left = DigitsOf(pasted);
        REQUIRE(DigitsOf(text).starts_with(left));
        REQUIRE(DigitsOf(text).find_first_not_of('0', left.size()) == std::string::npos);
        REQUIRE(amount.Holds(pasted));
    }
}

} // namespace

TEST_CASE("A paste is the number that it stands for, or nothing") {
    for (const std::string refused : {"1234567890123", "1e6", "-5", "\u22125", "1/2", "2026-11-22", "0,123",
             "3.142", "1234,567", "12\n345", "12\t345", "€ -1", "12-", "(5)", "50 %", "12½", "3 millions",
             "5 k€", "12e", "0x12", "1 € 2", "12, 34", "1,23,456", "1.2.3", "1,234,50", "1''2", "1.5 2",
             "1 234,567.8", "0.123.456", "12\u0663", "abc", "\xC2\xC2"}) {
        CAPTURE(refused);
        CHECK(Pasted(refused, comma) == "no");
        CHECK(Pasted(refused, point) == "no");
    }
    const char* const rows[][2] = {{"12.500", "12.50"}, {"1.234.567", "1234567"}, {"1.234,50", "1234.50"},
        {"1,234.50", "1234.50"}, {"1,234,567", "1234567"}, {"12,34", "12.34"}, {",5", ".5"}, {"12,", "12."},
        {"1\u00A0234\u202F567\u2009890", "1234567890"}, {"1 234 567,5", "1234567.5"},
        {"1'234'567.89", "1234567.89"}, {"1’234,5", "1234.5"}, {"1_234", "1234"},
        {" \n1 234,56\r\n", "1234.56"}, {"1 234,56 €", "1234.56"}, {"€12.50", "12.50"},
        {"Fr. 12.50", "12.50"}, {"12,5 couronnes", "12.5"}, {"US$ .50", ".50"}, {"12.–", "12."}, {"+7", "7"},
        {"999999999999.990", "999999999999.99"}};
    for (const auto& [pasted, number] : rows) {
        CAPTURE(pasted);
        CHECK(Pasted(pasted, comma) == number);
        CHECK(Pasted(pasted, point) == number);
    }
    CHECK(Pasted("1,234", comma) == "no");
    CHECK(Pasted("1,234", point) == "1234");
    CHECK(Pasted("12,500", comma) == "12.50");
    CHECK(Pasted("12,500", point) == "12500");
    CHECK(Pasted("1 " + std::string(1 << 20, '1') + ",5", comma) == "no");
}

TEST_CASE("Every text is the same number typed and pasted, or a refusal is heard") {
    const std::string_view alphabet = "10,. ";
    for (std::size_t number = 1; number <= 97'655; ++number) { // all texts of one to seven of these
        std::string text;
        for (std::size_t rest = number; rest > 0; rest = (rest - 1) / alphabet.size()) {
            text += alphabet[(rest - 1) % alphabet.size()];
        }
        CheckBothWays(text, comma);
        CheckBothWays(text, point);
    }
}

TEST_CASE("Keys go on with the number until one of them can't") {
    const struct {
        DecimalSign sign;
        const char *keys, *text;
        int refusals;
    } rows[] = {{point, "1,234.56", "1234.56", 0}, {point, "1,234,567.8", "1234567.8", 0},
        {point, "1,23", "1.23", 0}, {point, "1,234,5", "1,234,5", 0}, {point, "1,2345", "1234", 1},
        {point, "123,456,789,012,3", "123456789012", 2}, {comma, "1 234,56", "1234.56", 0},
        {comma, "1.234,56", "1.23", 4}, {comma, "1234567890123", "123456789012", 1}, {comma, "-5", "5", 1},
        {comma, "12.500", "12.50", 1}, {comma, "1e3", "13", 1}, {comma, "1..5", "1.5", 1}};
    for (const auto& [sign, keys, text, refusals] : rows) {
        CAPTURE(keys);
        Field field{sign};
        field.Type(keys);
        CHECK(field.text == text);
        CHECK(field.refusals == refusals);
    }
    Field mended{point};
    mended.Type("1,234,5");
    TextEdit deletion{mended.text, 5, 2, ""};
    CHECK(mended.typing.Take(deletion, amount, point) == NumberTyping::Refusal::None);
    CHECK(deletion.inserted == "1234"); // a number again
    mended.text = "1234";
    mended.typing.Forget();
    mended.Type("5");
    CHECK(mended.text == "12345");
}

TEST_CASE("In the middle of a number a key must leave a number") {
    NumberTyping typing;
    using enum NumberTyping::Refusal;
    TextEdit sign{"1234", 2, 0, ","}, tooEarly{"12345", 2, 0, "."}, whole{"12", 2, 0, "."};
    CHECK((typing.Take(sign, amount, comma) == None && sign.inserted == "."));
    CHECK(typing.Take(tooEarly, amount, comma) == TooManyDecimals);
    CHECK(typing.Take(whole, Mask("999"), comma) == TooManyDecimals);
    TextEdit message{"Nb Max = 9", 10, 0, "7"};
    CHECK((typing.Take(message, amount, comma) == None && message.removed == 10));
}

TEST_CASE("Separators stand between groups from the right, of the size that the base decides") {
    CHECK(FormatString("1234", " ", 0) == "1234");
    CHECK(FormatString("1234", " ", -3) == "1234");
    CHECK(FormatString("123456", " ", 3) == "123 456");
    CHECK(FormatString("aé€😀", "··", 1) == "a··é··€··😀");
    CHECK((FormatType("10101", 2, true) == "1 0101" && FormatType("ABCDEF", 36, true) == "A BCDEF"));
    CHECK((FormatType("F FFF", 16, true) == "FF FF" && FormatType("FF FF", 16, false) == "FFFF"));
}

TEST_CASE(
    "A decimal number is shown in groups or bare, each form turns into the other, and no text changes") {
    const char* const rows[][3] = {{"1 234 567", "1 234 567", "1234567"}, {"1234.5", "1 234.50", "1234.50"},
        {"12.", "12", "12"}, {".5", "0.50", "0.50"}, {"007.00", "7", "7"}, {"-1234", "-1 234", "-1234"},
        {"", "", ""}, {"#Erreur Nbre !", "#Erreur Nbre !", "#Erreur Nbre !"}, {"1,5", "1,5", "1,5"}};
    for (const auto& [text, shown, bare] : rows) {
        CHECK(FormatNbre(text, true) == shown);
        CHECK(FormatNbre(text, false) == bare);
    }
    // Two decimals that don't show the fraction would be taken for a whole number.
    for (const char* text : {"0.004", "-0.004", "1234.996", "1234.995", "0.995", "-1000000000000000000",
             "4503599627370496.5", "999999999999.994"}) {
        const std::string shown = FormatNbre(text, true), bare = FormatNbre(text, false);
        CAPTURE(text);
        CHECK((FormatNbre(shown, true) == shown && FormatNbre(bare, false) == bare));
        CHECK((FormatNbre(shown, false) == bare && FormatNbre(bare, true) == shown));
    }
}

#include "platform/Mask.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <random>
#include <string>

using namespace tessarolyne;

namespace {

const Mask amount("999999999999.99");

} // namespace

TEST_CASE("What would break the number is left out, the rest of it goes in") {
    CHECK(amount.Filter("", 0, 0, "1234567890123") == "123456789012");
    CHECK(amount.Filter("", 0, 0, "12.345") == "12.34");
    CHECK(amount.Filter("", 0, 0, "1.2.3") == "1.23");
    CHECK(amount.Filter("", 0, 0, "-1 234,5 €\x80") == "12345");
    CHECK(amount.Filter("1.5", 0, 0, ".") == "");
    CHECK(amount.Filter("1.55", 4, 0, "5") == "");
    CHECK(amount.Filter("123456789012", 9, 0, ".") == ""); // three digits would stand behind it
    CHECK(amount.Filter("123456789012", 10, 0, ".") == ".");
    CHECK(amount.Filter("123456789012", 0, 1, "34") == "3");
    CHECK(amount.Filter("123456789012.5", 12, 1, "7.") == "."); // without the point it has too many digits
}

TEST_CASE("A whole number's mask has no point") {
    const Mask count("999");
    CHECK(count.Filter("", 0, 0, "1.2345") == "123");
    CHECK(count.Filter("12", 1, 1, "34") == "34");
}

TEST_CASE("A message gives way to a number but takes none in") {
    const std::string message = "#Erreur “Nbre” !";
    const std::size_t characters = 16;
    CHECK(amount.Filter(message, 0, characters, "12x") == "12");
    CHECK(amount.Filter(message, characters, 0, "1") == "");
    CHECK(amount.Filter(message, 0, characters - 1, "1") == "");
}

TEST_CASE("A number shown in groups is judged without its blanks") {
    CHECK(amount.Filter("1 234", 5, 0, "5.67") == "5.67");
    CHECK(amount.Filter("999 999 999 999", 15, 0, "9") == "");
    CHECK(amount.Filter("999 999 999 999", 0, 4, "12345") == "123");
}

TEST_CASE("Whatever is inserted anywhere, a fitting text keeps fitting") {
    std::mt19937 random(5);
    const std::string keys = "0123456789..  x-";
    std::string text;
    for (int round = 0; round < 20000; ++round) {
        const std::size_t start = random() % 18;
        const std::size_t removed = random() % 3;
        std::string inserted;
        for (std::size_t n = random() % 6; n > 0; --n) {
            inserted += keys[random() % keys.size()];
        }
        const std::string accepted = amount.Filter(text, start, removed, inserted);
        std::string changed = text;
        changed.replace(std::min(start, text.size()), removed, accepted);
        const std::size_t point = std::min(changed.find('.'), changed.size());
        const bool fits = changed.find_first_not_of("0123456789.") == std::string::npos && point <= 12 &&
                          changed.rfind('.') == changed.find('.') && changed.size() - point <= 3;
        if (!accepted.empty()) {
            REQUIRE(fits);
        }
        text = fits ? changed : std::string();
    }
}

TEST_CASE("A megabyte pasted is filtered down to what the field holds") {
    CHECK(amount.Filter("", 0, 0, std::string(1 << 20, '7')) == "777777777777");
}

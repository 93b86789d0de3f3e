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
    const std::string message = "#Erreur “Nbre” !"; // gives way to a number but takes none in
    const struct {
        std::string before;
        std::size_t start, removed;
        std::string inserted, accepted;
    } rows[] = {
        {"", 0, 0, "1234567890123", "123456789012"},
        {"", 0, 0, "12.345", "12.34"},
        {"", 0, 0, "1.2.3", "1.23"},
        {"", 0, 0, "-1 234,5 €\x80", "12345"},
        {"", 0, 0, std::string(1 << 20, '7'), "777777777777"},
        {"1.5", 0, 0, ".", ""},
        {"1.55", 4, 0, "5", ""},
        {"123456789012", 9, 0, ".", ""}, // three digits would stand behind it
        {"123456789012", 10, 0, ".", "."},
        {"123456789012", 0, 1, "34", "3"},
        {"123456789012.5", 12, 1, "7.", "."}, // without the point it has too many digits
        {message, 0, 16, "12x", "12"},
        {message, 16, 0, "1", ""},
        {message, 0, 15, "1", ""},
        // a number in groups is judged without its blanks
        {"1 234", 5, 0, "5.67", "5.67"},
        {"999 999 999 999", 15, 0, "9", ""},
        {"999 999 999 999", 0, 4, "12345", "123"},
    };
    for (const auto& row : rows) {
        CAPTURE(row.before);
        CHECK(amount.Filter(row.before, row.start, row.removed, row.inserted) == row.accepted);
    }
    CHECK(Mask("999").Filter("", 0, 0, "1.2345") == "123"); // a whole number's mask has no point
    CHECK(Mask("999").Filter("12", 1, 1, "34") == "34");
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
        REQUIRE((fits || accepted.empty()));
        text = fits ? changed : std::string();
    }
}

#include "conversion/BaseConversion.h"

#include <doctest/doctest.h>

#include <cctype>
#include <cstdint>
#include <random>

using namespace tessarolyne;

namespace {

const std::string errNbre = "#Erreur Nbre !";
const std::string errBase = "#Erreur Base !";
constexpr const char* largest = "18446744073709551615";

std::string Convert(std::string_view nombre, int from, int to, std::string_view alphabet = alphabet09AZ) {
    return ConvNbreBase(nombre, from, to, alphabet);
}

// The digits by counting how often each power of the base goes in, from the highest down.
std::string SlowDigits(std::uint64_t value, unsigned base, std::string_view alphabet) {
    std::uint64_t power = 1;
    while (value / power >= base) {
        power *= base;
    }
    std::string digits;
    for (; power > 0; value %= power, power /= base) {
        digits += (base == 10 ? alphabet09AZ : alphabet)[static_cast<std::size_t>(value / power)];
    }
    return digits;
}

} // namespace

TEST_CASE("Every value up to 64 bits goes between every two bases and back as slow counting says") {
    std::mt19937_64 random(6);
    for (unsigned from = 2; from <= 36; ++from) {
        for (unsigned to = 2; to <= 36; ++to) {
            const std::string_view alphabet = random() % 2 == 0 ? alphabet09AZ : alphabetAZ09;
            // In base 10 a value is read through a double, exact up to 2 to the power 53.
            const std::uint64_t limit = std::uint64_t{1} << (from == 10 ? 53 : 63);
            for (const std::uint64_t value : {std::uint64_t{0}, std::uint64_t{1}, std::uint64_t{from},
                     std::uint64_t{to}, (std::uint64_t{1} << 53) - 1, limit, random() % limit}) {
                CAPTURE(value);
                std::string digits = SlowDigits(value, from, alphabet);
                for (char& digit : digits) {
                    digit = random() % 2 == 0 ? digit : static_cast<char>(std::tolower(digit));
                }
                REQUIRE(Convert(digits, static_cast<int>(from), static_cast<int>(to), alphabet) ==
                        SlowDigits(value, to, alphabet));
            }
        }
    }
    CHECK((Convert("255", 10, 16) == "FF" && Convert("255", 10, 16, alphabetAZ09) == "PP"));
    CHECK((Convert("", 16, 10) == "0" && Convert("", 10, 16) == errNbre));
}

TEST_CASE("A base outside the alphabet is an error before anything else") {
    for (const int bad : {-32768, -1, 0, 1, 37, 32767}) {
        CHECK((Convert("x", bad, 10) == errBase && Convert("x", 10, bad) == errBase));
    }
    CHECK(Convert("1", 2, 2, "") == errBase);
}

TEST_CASE("A character outside the base makes the number bad wherever it stands") {
    const std::string full(100, 'F');
    for (const std::string& bad :
        {std::string("1G"), std::string("-1"), std::string("1 0"), full + "G", "g" + full,
            std::string("1\0", 2), std::string("1\u0301"), std::string("1\xC3"), std::string("１")}) {
        CAPTURE(bad);
        CHECK(Convert(bad, 16, 10) == errNbre);
        CHECK(Convert(bad, 16, 2) == errNbre);
    }
    CHECK(Convert("ı", 36, 10) == errNbre);
    CHECK(Convert("C", 2, 10, alphabetAZ09) == errNbre);
}

TEST_CASE("A value that doesn't fit or is negative is the largest that does") {
    CHECK(Convert("FFFFFFFFFFFFFFFF", 16, 10) == largest);
    CHECK(Convert("10000000000000000", 16, 10) == largest);
    CHECK(Convert(std::string(1 << 20, 'F'), 16, 10) == largest);
    CHECK(Convert("FFFFFFFFFFFFFFFE", 16, 10) == "18446744073709551614");
    CHECK(Convert("3W5E11264SGSF", 36, 10) == largest);
    CHECK(Convert("3W5E11264SGSG", 36, 10) == largest);
    CHECK(Convert("12.7", 10, 10) == "12"); // what is numeric is cut to a whole number
    CHECK(Convert("-0.9", 10, 10) == "0");
    CHECK(Convert("-1", 10, 10) == largest);
    CHECK(Convert("18446744073709551616", 10, 10) == largest);
}

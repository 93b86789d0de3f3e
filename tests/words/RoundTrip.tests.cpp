#include "words/EnglishWords.h"
#include "words/FrenchWords.h"
#include "words/WordsReaders.h"

#include <doctest/doctest.h>

#include <cstdint>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

using namespace tessarolyne;
using namespace tessarolyne::tests;

namespace {

using Texts = std::vector<std::string_view>;

// Sanitizers slow the reading several times over.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int randomNumbers = 300'000;
#else
constexpr int randomNumbers = 1'000'000;
#endif
constexpr std::int64_t allBelow = 100'000;

// Numbers of every length up to the limit. A fourth of the groups are zeros, which a plain random number
// hardly ever has.
class RandomNumbers {
public:
    explicit RandomNumbers(int mostDigits) : length_(1, mostDigits) {}

    std::int64_t Next() {
        std::int64_t number = 0;
        std::int64_t scale = 1;
        for (int digits = length_(random_); digits > 0; digits -= 3) {
            const std::uint64_t size = digits >= 3 ? 1000 : digits == 2 ? 100 : 10;
            const std::uint64_t bits = random_();
            number += bits % 4 == 0 ? 0 : scale * static_cast<std::int64_t>((bits >> 2U) % size);
            scale *= 1000;
        }
        return number;
    }

private:
    std::mt19937_64 random_{20261122};
    std::uniform_int_distribution<int> length_;
};

// The first number that `readBack` doesn't give back as itself.
template <typename ReadBack>
std::optional<std::int64_t> FirstMisread(int mostDigits, ReadBack readBack) {
    for (std::int64_t number = 0; number < allBelow; ++number) {
        if (readBack(number) != number) {
            return number;
        }
    }
    RandomNumbers numbers(mostDigits);
    for (int i = 0; i < randomNumbers; ++i) {
        if (const std::int64_t number = numbers.Next(); readBack(number) != number) {
            return number;
        }
    }
    return std::nullopt;
}

// Takes off what joins the words to a currency that begins with a vowel, where it is due.
std::optional<std::int64_t> ReadFrenchAmount(std::int64_t number, bool chBe) {
    std::string words = ConvNbreLettresFr(std::to_string(number), chBe, "euros", "trop grand");
    const std::string_view end = number != 0 && number % 1000000 == 0 ? " d'" : " ";
    if (!words.ends_with(end)) {
        return std::nullopt;
    }
    words.resize(words.size() - end.size());
    return ReadFrench(words, chBe ? French::OfSwitzerlandAndBelgium : French::OfFrance);
}

} // namespace

TEST_CASE("Every number in French words reads back as itself") {
    const auto misread =
        FirstMisread(12, [](std::int64_t number) { return ReadFrenchAmount(number, false); });
    CHECK_MESSAGE(!misread, "first misread: ", misread.value_or(-1));
}

TEST_CASE("Every number in Swiss and Belgian French words reads back as itself") {
    const auto misread = FirstMisread(12, [](std::int64_t number) { return ReadFrenchAmount(number, true); });
    CHECK_MESSAGE(!misread, "first misread: ", misread.value_or(-1));
}

TEST_CASE("Every number in English words reads back as itself") {
    const auto misread = FirstMisread(9, [](std::int64_t number) -> std::optional<std::int64_t> {
        const std::string words = ConvNbreLettresEn(std::to_string(number), "too large");
        return words.ends_with(' ') ? ReadEnglish(std::string_view(words).substr(0, words.size() - 1))
                                    : std::nullopt;
    });
    CHECK_MESSAGE(!misread, "first misread: ", misread.value_or(-1));
}

TEST_CASE("The French reader takes no faulty spelling for a number") {
    for (const std::string_view words : Texts{"", " ", "un ", "un  mille", "un mille", "quatre-vingt",
             "quatre-vingts-un", "quatre vingts", "quatre-vingts mille", "quatre-vingt millions", "deux cent",
             "deux cents un", "deux cents mille", "un cent", "dix cents", "cents", "vingt-un", "vingt-et-un",
             "vingt et deux", "vingt deux", "soixante-onze", "soixante et un-dix", "soixante-dix-six",
             "quatre-vingt et un", "un millions", "deux million", "mille million", "mille mille",
             "deux-mille", "un million zéro", "septante", "cent-un", "million", "et un", "quatre-vingts-"}) {
        CAPTURE(words);
        CHECK_FALSE(ReadFrench(words, French::OfFrance).has_value());
    }
    for (const std::string_view words :
        Texts{"soixante-dix", "quatre-vingts", "huitante et un", "nonante-un", "soixante et onze"}) {
        CAPTURE(words);
        CHECK_FALSE(ReadFrench(words, French::OfSwitzerlandAndBelgium).has_value());
    }
}

TEST_CASE("The English reader takes no faulty spelling for a number") {
    for (const std::string_view words : Texts{"", "one ", "twenty-one", "twenty eleven", "one hundred one",
             "hundred", "and one", "one hundred and", "one thousand one", "one thousand and one hundred",
             "one million and one thousand", "one thousand one million", "one thousand thousand",
             "eleven hundred", "one million zero"}) {
        CAPTURE(words);
        CHECK_FALSE(ReadEnglish(words).has_value());
    }
}

#pragma once

#include <cstdint>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

// Numbers in words a second time: by arithmetic on the value, where the program goes by the digits, and from
// the fewest words that the languages allow.
namespace tessarolyne::tests {

using Words = std::vector<std::string>;

inline Words Split(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

inline std::string FrenchBelowHundred(std::size_t n, bool chBe) {
    static const Words least =
        Split("zéro un deux trois quatre cinq six sept huit neuf dix onze douze treize "
              "quatorze quinze seize dix-sept dix-huit dix-neuf");
    static const Words tens = Split("vingt trente quarante cinquante soixante septante huitante nonante");
    if (n < least.size()) {
        return least[n];
    }
    const bool byTwenties = !chBe && n >= 60;
    const std::size_t base = byTwenties ? n / 20 * 20 : n / 10 * 10;
    const std::size_t rest = n - base;
    const std::string word = byTwenties && base == 80 ? "quatre-vingt" : tens[base / 10 - 2];
    if (rest == 0) {
        return byTwenties && base == 80 ? word + "s" : word;
    }
    return word + (rest % 10 == 1 && base != 80 ? " et " : "-") + FrenchBelowHundred(rest, chBe);
}

inline std::string FrenchBelowThousand(std::size_t n, bool chBe) {
    if (n < 100) {
        return FrenchBelowHundred(n, chBe);
    }
    const std::string hundreds = n < 200 ? "cent" : FrenchBelowHundred(n / 100, chBe) + " cent";
    return n % 100 > 0 ? hundreds + " " + FrenchBelowHundred(n % 100, chBe) : hundreds + (n < 200 ? "" : "s");
}

inline std::string PlainFrench(std::size_t n, bool chBe) {
    if (n == 0) {
        return "zéro";
    }
    std::string words;
    for (const auto& [scale, noun] : {std::pair{1'000'000'000U, "milliard"}, {1'000'000U, "million"}}) {
        if (const std::size_t group = n / scale % 1000; group > 0) {
            words += FrenchBelowThousand(group, chBe) + " " + noun + (group > 1 ? "s " : " ");
        }
    }
    if (const std::size_t thousands = n / 1000 % 1000; thousands > 1) {
        std::string group = FrenchBelowThousand(thousands, chBe);
        if (group.ends_with("vingts") || group.ends_with("cents")) {
            group.pop_back(); // the mark is for nouns, and "mille" is none
        }
        words += group + " mille ";
    } else if (thousands == 1) {
        words += "mille ";
    }
    words += n % 1000 > 0 ? FrenchBelowThousand(n % 1000, chBe) : "";
    return words.substr(0, words.find_last_not_of(' ') + 1);
}

inline std::string PlainEnglish(std::size_t n) {
    static const Words least = Split("zero one two three four five six seven eight nine ten eleven twelve "
                                     "thirteen fourteen fifteen sixteen seventeen eighteen nineteen");
    static const Words tens = Split("twenty thirty forty fifty sixty seventy eighty ninety");
    const auto with = [&](std::size_t scale, const char* noun, const char* link) {
        const std::string words = PlainEnglish(n / scale) + noun;
        return n % scale == 0 ? words : words + link + PlainEnglish(n % scale);
    };
    if (n >= 1000) {
        const std::size_t scale = n < 1'000'000 ? 1000 : 1'000'000;
        return with(scale, scale == 1000 ? " thousand" : " million", n % scale < 100 ? " and " : " ");
    }
    if (n >= 100) {
        return with(100, " hundred", " and ");
    }
    return n < 20 ? least[n] : tens[n / 10 - 2] + (n % 10 > 0 ? " " + least[n % 10] : "");
}

} // namespace tessarolyne::tests

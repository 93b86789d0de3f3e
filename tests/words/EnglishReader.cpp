#include "words/WordStream.h"
#include "words/WordsReaders.h"

namespace tessarolyne::tests {

namespace {

const Lexicon& EnglishLexicon() {
    static const Lexicon lexicon = {{"one", {1}}, {"two", {2}}, {"three", {3}}, {"four", {4}}, {"five", {5}},
        {"six", {6}}, {"seven", {7}}, {"eight", {8}}, {"nine", {9}}, {"ten", {10}}, {"eleven", {11}},
        {"twelve", {12}}, {"thirteen", {13}}, {"fourteen", {14}}, {"fifteen", {15}}, {"sixteen", {16}},
        {"seventeen", {17}}, {"eighteen", {18}}, {"nineteen", {19}}, {"twenty", {20}}, {"thirty", {30}},
        {"forty", {40}}, {"fifty", {50}}, {"sixty", {60}}, {"seventy", {70}}, {"eighty", {80}},
        {"ninety", {90}}, {"hundred", {100}}, {"thousand", {1000}}, {"million", {1000000}},
        {"and", {conjunction}}};
    return lexicon;
}

bool IsWithin(const Word& word, std::int64_t least, std::int64_t most) {
    return word.before == ' ' && word.value >= least && word.value <= most;
}

std::int64_t BelowHundred(WordStream& words) {
    if (!IsWithin(words.Peek(), 1, 90)) {
        return nothing;
    }
    const std::int64_t first = words.Take().value;
    return first >= 20 && IsWithin(words.Peek(), 1, 9) ? first + words.Take().value : first;
}

// "and" stands between the hundreds and what follows them in the same group.
std::int64_t BelowThousand(WordStream& words) {
    const std::int64_t first = BelowHundred(words);
    if (first < 1 || first > 9 || !words.TakeIf(100, ' ')) {
        return first;
    }
    if (!words.TakeIf(conjunction, ' ')) {
        return first * 100;
    }
    const std::int64_t rest = BelowHundred(words);
    return rest == nothing ? nothing : first * 100 + rest;
}

std::int64_t Scale(WordStream& words) {
    if (words.AtEnd()) {
        return 1;
    }
    return IsWithin(words.Peek(), 1000, 1000000) ? words.Take().value : nothing;
}

} // namespace

std::optional<std::int64_t> ReadEnglish(std::string_view text) {
    if (text == "zero") {
        return 0;
    }
    WordStream words(text, EnglishLexicon());
    std::int64_t total = 0;
    std::int64_t scale = 1000000000;
    while (!words.AtEnd()) {
        const bool conjoined = words.TakeIf(conjunction, ' ');
        const std::int64_t group = BelowThousand(words);
        const std::int64_t outer = scale;
        scale = Scale(words);
        // A last group without hundreds is joined to what stands before it, and no other is.
        const bool joins = total > 0 && scale == 1 && group < 100;
        if (group <= 0 || conjoined != joins || scale == nothing || scale >= outer) {
            return std::nullopt;
        }
        total += group * scale;
    }
    return total > 0 ? std::optional(total) : std::nullopt;
}

} // namespace tessarolyne::tests

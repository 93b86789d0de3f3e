#include "words/WordStream.h"
#include "words/WordsReaders.h"

namespace tessarolyne::tests {

namespace {

const Lexicon& FrenchLexicon() {
    static const Lexicon lexicon = {{"un", {1}}, {"deux", {2}}, {"trois", {3}}, {"quatre", {4}},
        {"cinq", {5}}, {"six", {6}}, {"sept", {7}}, {"huit", {8}}, {"neuf", {9}}, {"dix", {10}},
        {"onze", {11}}, {"douze", {12}}, {"treize", {13}}, {"quatorze", {14}}, {"quinze", {15}},
        {"seize", {16}}, {"vingt", {20}}, {"vingts", {20, true}}, {"trente", {30}}, {"quarante", {40}},
        {"cinquante", {50}}, {"soixante", {60}}, {"septante", {70}}, {"huitante", {80}}, {"nonante", {90}},
        {"cent", {100}}, {"cents", {100, true}}, {"mille", {1000}}, {"million", {1000000}},
        {"millions", {1000000, true}}, {"milliard", {1000000000}}, {"milliards", {1000000000, true}},
        {"et", {conjunction}}};
    return lexicon;
}

// One reading of one text by descent through the grammar: a number is groups with falling scale words, a
// group is hundreds and what lies below a hundred. Any step may give `nothing`, and then the whole is no
// number.
class FrenchReader {
public:
    FrenchReader(std::string_view words, French variant)
        : words_(words, FrenchLexicon()), ofFrance_(variant == French::OfFrance) {}

    std::optional<std::int64_t> Number() {
        std::int64_t total = 0;
        std::int64_t scale = 1000000000000;
        while (!words_.AtEnd()) {
            const bool bare = words_.TakeIf(1000, ' ');
            const Group group = bare ? Group{1} : ReadGroup();
            const std::int64_t outer = scale;
            scale = bare ? 1000 : Scale(group);
            if (group.value <= 0 || scale == nothing || scale >= outer) {
                return std::nullopt;
            }
            total += group.value * scale;
        }
        return total > 0 ? std::optional(total) : std::nullopt;
    }

private:
    // `multiplied`: it ends in a multiplied "vingt" or "cent"; `marked`: that bears the plural's "s".
    struct Group {
        std::int64_t value = nothing;
        bool multiplied = false;
        bool marked = false;
    };

    // The scale word behind a group. A multiplied "vingt" or "cent" is marked before nouns and at the end,
    // and "mille" is no noun; one thousand is never "un mille".
    std::int64_t Scale(const Group& group) {
        const Word& next = words_.Peek();
        const bool mille = next.value == 1000;
        if (group.marked != (group.multiplied && !mille)) {
            return nothing;
        }
        if (words_.AtEnd()) {
            return 1;
        }
        const bool inNumber = mille ? group.value > 1 && !next.plural : next.plural == (group.value > 1);
        if (next.value < 1000 || next.before != ' ' || !inNumber) {
            return nothing;
        }
        return words_.Take().value;
    }

    Group ReadGroup() {
        if (words_.Peek().before != ' ') {
            return {};
        }
        if (words_.Peek().value == 100 && !words_.Peek().plural) {
            words_.Take();
            return WithRest({100, false, false});
        }
        const Word first = words_.Take();
        const Word& second = words_.Peek();
        if (first.value >= 2 && first.value <= 9 && second.value == 100 && second.before == ' ') {
            return WithRest({first.value * 100, true, words_.Take().plural});
        }
        return BelowHundred(first);
    }

    Group WithRest(const Group& hundreds) {
        const std::int64_t next = words_.Peek().value;
        if (next < 1 || next >= 100 || words_.Peek().before != ' ') {
            return hundreds;
        }
        const Group rest = BelowHundred(words_.Take());
        if (rest.value == nothing || hundreds.marked) {
            return {};
        }
        return {hundreds.value + rest.value, rest.multiplied, rest.marked};
    }

    Group BelowHundred(const Word& first) {
        if (first.value == 4 && words_.Peek().value == 20 && words_.Peek().before == '-') {
            return QuatreVingt(words_.Take().plural);
        }
        if (first.plural || first.value < 1 || first.value > 90) {
            return {};
        }
        if (first.value >= 20) {
            return {Tens(first.value)};
        }
        return {first.value == 10 ? 10 + Joined(7, 9) : first.value};
    }

    Group QuatreVingt(bool plural) {
        const std::int64_t rest = JoinedBelowTwenty(1);
        if (!ofFrance_ || (plural && rest != 0)) {
            return {};
        }
        return {80 + rest, rest == 0, plural};
    }

    // "et" before "un", and before the "onze" of 71; in both variants "un" is joined by a hyphen to 80 alone.
    std::int64_t Tens(std::int64_t tens) {
        if (ofFrance_ && tens >= 70) {
            return nothing;
        }
        const bool sixtyOfFrance = ofFrance_ && tens == 60;
        if (words_.TakeIf(conjunction, ' ')) {
            if (tens != 80 && words_.TakeIf(1, ' ')) {
                return tens + 1;
            }
            return sixtyOfFrance && words_.TakeIf(11, ' ') ? 71 : nothing;
        }
        if (sixtyOfFrance) {
            const std::int64_t rest = JoinedBelowTwenty(2);
            return rest == 11 ? nothing : tens + rest;
        }
        return tens + Joined(tens == 80 ? 1 : 2, 9);
    }

    std::int64_t JoinedBelowTwenty(std::int64_t least) {
        const std::int64_t rest = Joined(least, 16);
        return rest == 10 ? rest + Joined(7, 9) : rest;
    }

    // The number of the next word, when a hyphen joins it and it lies within the borders; else 0.
    std::int64_t Joined(std::int64_t least, std::int64_t most) {
        const Word& next = words_.Peek();
        const bool joined = next.before == '-' && !next.plural && next.value >= least && next.value <= most;
        return joined ? words_.Take().value : 0;
    }

    WordStream words_;
    bool ofFrance_;
};

} // namespace

std::optional<std::int64_t> ReadFrench(std::string_view words, French variant) {
    if (words == "zéro") {
        return 0;
    }
    return FrenchReader(words, variant).Number();
}

} // namespace tessarolyne::tests

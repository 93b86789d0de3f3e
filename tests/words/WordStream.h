#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>

namespace tessarolyne::tests {

// A word as a reader sees it: its number, or what it joins, and what stands before it.
struct Word {
    std::int64_t value = 0;
    bool plural = false;
    char before = ' '; // a blank or a hyphen; a blank for the first word
};

inline constexpr std::int64_t conjunction = -1; // "et", "and"
inline constexpr std::int64_t nothing = -2;     // the end, or no word of the language

using Lexicon = std::unordered_map<std::string_view, Word>;

// Walks over words that are parted by single blanks or hyphens; a separator with no word behind it leaves an
// empty one, which no lexicon has.
class WordStream {
public:
    WordStream(std::string_view text, const Lexicon& lexicon) : rest_(text), lexicon_(lexicon) { Advance(); }

    const Word& Peek() const { return word_; }

    // Whether all the text has been read.
    bool AtEnd() const { return atEnd_; }

    Word Take() {
        const Word taken = word_;
        Advance();
        return taken;
    }

    bool TakeIf(std::int64_t value, char before) {
        const bool found = word_.value == value && word_.before == before;
        if (found) {
            Advance();
        }
        return found;
    }

private:
    void Advance() {
        word_ = Word{nothing, false, separator_};
        atEnd_ = exhausted_;
        if (exhausted_) {
            return;
        }
        const std::size_t end = rest_.find_first_of(" -");
        if (const auto found = lexicon_.find(rest_.substr(0, end)); found != lexicon_.end()) {
            word_ = {found->second.value, found->second.plural, separator_};
        }
        exhausted_ = end == std::string_view::npos;
        if (!exhausted_) {
            separator_ = rest_[end];
            rest_.remove_prefix(end + 1);
        }
    }

    std::string_view rest_;
    const Lexicon& lexicon_;
    Word word_;
    char separator_ = ' ';
    bool exhausted_ = false; // the last word has been looked at
    bool atEnd_ = false;     // and taken
};

} // namespace tessarolyne::tests

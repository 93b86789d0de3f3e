#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tessarolyne {

// The numbers of this run, for Up and Down to go through: decimal, without groups, each once, the latest at
// the end. What was being typed when Up was pressed first comes back behind them.
class NumberHistory {
public:
    // How many are kept.
    static constexpr std::size_t longest = 200;

    // Takes a number in as the latest; nothing for an empty text.
    void Add(const std::string& number);

    // A number, or the text that was being typed.
    struct Step {
        std::string text;
        bool isDraft = false;
    };
    // One step towards the first number, skipping `shown`, the number that stands there; nothing at the end.
    // `text` is what is being typed, kept at the first step.
    std::optional<Step> Earlier(const std::string& shown, const std::string& text);
    // One step back, the last of them to the draft.
    std::optional<Step> Later();

    // The user types again: the next step begins at the latest number. What was being typed counts as one.
    void GoOn();

private:
    std::vector<std::string> numbers_;
    std::optional<std::size_t> at_; // the number that is shown, while there are steps to take back
    std::string draft_;
    std::string draftNumber_;
};

} // namespace tessarolyne

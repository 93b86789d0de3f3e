#include "conversion/NumberHistory.h"

#include <algorithm>

namespace tessarolyne {

void NumberHistory::Add(const std::string& number) {
    if (number.empty()) {
        return;
    }
    std::erase(numbers_, number);
    numbers_.push_back(number);
    if (numbers_.size() > longest) {
        numbers_.erase(numbers_.begin());
    }
}

std::optional<std::string> NumberHistory::Earlier(const std::string& shown, const std::string& text) {
    std::size_t at = at_.value_or(numbers_.size());
    if (at > 0 && numbers_[at - 1] == shown) {
        --at;
    }
    if (at == 0) {
        return {};
    }
    if (!at_) {
        draft_ = text;
        draftNumber_ = shown;
    }
    at_ = at - 1;
    return numbers_[*at_];
}

std::optional<NumberHistory::Step> NumberHistory::Later() {
    if (!at_) {
        return {};
    }
    const std::size_t next = *at_ + 1;
    if (next >= numbers_.size() || (next + 1 == numbers_.size() && numbers_[next] == draftNumber_)) {
        at_.reset();
        return Step{draft_, true};
    }
    at_ = next;
    return Step{numbers_[next], false};
}

void NumberHistory::GoOn() {
    if (at_) {
        at_.reset();
        Add(draftNumber_);
    }
}

} // namespace tessarolyne

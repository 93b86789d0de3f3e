#include "primes/CalculationProgress.h"

#include "conversion/NumberFormat.h"
#include "platform/CheckBox.h"
#include "platform/ProgressWheel.h"
#include "platform/Text.h"
#include "primes/PrimeTable.h"

#include <algorithm>
#include <string>

namespace tessarolyne {

namespace {

constexpr int lookPeriod = 250;      // milliseconds
constexpr int looksBetweenWords = 4; // speech takes its time
constexpr const char* noBreakSpace = "\u00A0";

} // namespace

CalculationProgress::CalculationProgress(EventLoop& loop, const PrimeTable& table, const CheckBox& formatAuto)
    : table_(table), formatAuto_(formatAuto), timer_(loop, lookPeriod) {
    timer_.Action = [this] { Tell(); };
}

void CalculationProgress::Follow(ProgressWheel& wheel, std::uint64_t goal) {
    End();
    wheel_ = &wheel;
    Goal = goal;
    looks_ = 0;
    timer_.Mode = 2;
}

void CalculationProgress::End() {
    timer_.Mode = 0;
    Goal = 0;
    if (wheel_ != nullptr) {
        wheel_->HelpTag = "";
        wheel_->Spoken = "";
        wheel_->Value = 0;
        wheel_->Maximum = 0;
        wheel_ = nullptr;
    }
}

void CalculationProgress::Tell() {
    const std::uint64_t goal = Goal;
    const std::uint64_t reached = goal == 0 ? table_.LastReached() : std::min(table_.LastReached(), goal);
    // The beginning of the primes says in every language what the number is.
    std::string words = "2, 3, 5, 7 … " + FormatWhole(reached, formatAuto_.Value);
    if (goal != 0) {
        words += " / " + FormatWhole(goal, formatAuto_.Value);
    }
    wheel_->Maximum = static_cast<std::int64_t>(goal);
    wheel_->HelpTag = ReplaceAll(words, " ", noBreakSpace); // else it breaks inside the number
    if (looks_++ % looksBetweenWords == 0) {
        wheel_->Spoken = words;
        wheel_->Value = goal == 0 ? 0 : static_cast<std::int64_t>(reached);
    }
}

} // namespace tessarolyne

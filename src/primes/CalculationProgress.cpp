#include "primes/CalculationProgress.h"

#include "platform/Controls.h"
#include "platform/Desktop.h"
#include "platform/EventLoop.h"
#include "platform/Text.h"
#include "primes/engine/PrimeTable.h"
#include "ui/Localisation.h"
#include "ui/NumberFormat.h"

#include <algorithm>
#include <string>

namespace tessarolyne {

namespace {

constexpr int lookPeriod = 250;      // milliseconds
constexpr int looksBetweenWords = 4; // speech takes its time
constexpr int looksInASecond = 1000 / lookPeriod;
constexpr int longRun = 10'000; // milliseconds; the user may have gone on to something else
constexpr const char* noBreakSpace = "\u00A0";

} // namespace

CalculationProgress::CalculationProgress(
    EventLoop& loop, Desktop& desktop, const PrimeTable& table, const CheckBox& formatAuto)
    : loop_(loop), desktop_(desktop), table_(table), formatAuto_(formatAuto), timer_(loop, lookPeriod) {
    timer_.Action = [this] { Tell(); };
}

void CalculationProgress::Follow(ProgressWheel& wheel, Label& label, std::uint64_t goal) {
    End();
    wheel_ = &wheel;
    label_ = &label;
    begun_ = loop_.Milliseconds();
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
        label_->Visible = false;
        if (loop_.Milliseconds() - begun_ > longRun) {
            desktop_.AskForAttention();
        }
    }
}

// In whole per cents; a hundred is the end's alone.
void CalculationProgress::TellBeside(std::uint64_t reached, std::uint64_t goal) {
    constexpr std::uint64_t most = 99;
    label_->Text = goal == 0 ? Localisation::Txt_EchapStoppe()
                             : ReplaceAll(Localisation::Txt_Avancement(), Localisation::placeForValue,
                                   std::to_string(std::min(reached * 100 / goal, most)));
    label_->Visible = true;
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
    if (looks_ >= looksInASecond) {
        TellBeside(reached, goal);
    }
}

} // namespace tessarolyne

#include "primes/Calculation.h"

#include "platform/Controls.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "primes/engine/Factors.h"
#include "primes/engine/PrimeGrowth.h"
#include "primes/engine/PrimeTable.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"
#include "ui/WrittenNumber.h"

#include <algorithm>

namespace tessarolyne {

namespace {

constexpr int lookPeriod = 250;      // milliseconds
constexpr int looksBetweenWords = 4; // speech takes its time
constexpr int looksInASecond = 1000 / lookPeriod;
constexpr int absentRun = 10'000; // milliseconds; the user may have gone on to something else
constexpr const char* noBreakSpace = "\u00A0";

constexpr int handOverPeriod = 1;
constexpr int waitingPeriod = 50; // while the thread or a dialog keeps the result waiting
constexpr int longRun = 1000;     // by then nobody waits for the result any more

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
    timer_.Mode = TimerMode::Multiple;
}

void CalculationProgress::End() {
    timer_.Mode = TimerMode::Off;
    Goal = 0;
    if (wheel_ != nullptr) {
        wheel_->HelpTag = "";
        wheel_->Spoken = "";
        wheel_->Value = 0;
        wheel_->Maximum = 0;
        wheel_ = nullptr;
        label_->Visible = false;
        if (loop_.Milliseconds() - begun_ > absentRun) {
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
    const std::uint64_t reached = goal == 0 ? table_.Back() : std::min(table_.Back(), goal);
    // The first primes say in every language what the number is.
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

Calculation::Calculation(Fncts& fncts, Services& services, PrimeTable& table, const CheckBox& formatAuto)
    : Progress(services.loop, services.desktop, table, formatAuto), fncts_(fncts), services_(services),
      table_(table), timerThr_(services.loop, handOverPeriod), worker_(services.loop) {
    timerThr_.Action = [this] { TimerThr_Action(); };
    worker_.Run = [this] {
        task_->body(task_->ThrPn1);
        thrNo_ = task_->step;
        timerThr_.Mode = TimerMode::Single;
    };
    worker_.Failed = [this](const std::string& reason) { ThreadFailed(reason); };
}

void Calculation::Begin() {
    calculEnCours_ = true;
    fncts_.ArretUrg = false;
}

void Calculation::RunOnThread(Task task) {
    HoldMenu(true);
    runBegan_ = services_.clock.Milliseconds();
    Progress.Follow(task.wheel, task.label, task.goal);
    task_.emplace(std::move(task));
    worker_.Start();
}

void Calculation::HoldMenu(bool hold) {
    fncts_.HoldMenuForCalculation(hold);
    EnableMenuBoutons();
}

void Calculation::TimerThr_Action() {
    if (IsOnThread() || fncts_.DrapDiagBox) {
        timerThr_.Period = waitingPeriod;
        timerThr_.Mode = TimerMode::Single;
        return;
    }
    timerThr_.Period = handOverPeriod;
    if (thrNo_ != factorsAreThere && thrNo_ != listRunHasEnded) {
        fncts_.MsgBox("Error ! Please contact the authors, TimerThr" + std::string(endOfLine) + "ThrNo " +
                      Str(thrNo_) + " , Which Case ?");
        return;
    }
    HoldMenu(false);
    Progress.End();
    task_->whenOver(task_->ThrPn1);
}

void Calculation::Stop() {
    fncts_.ArretUrg = calculEnCours_;
}

void Calculation::StopOnEscape(const std::string& key) {
    if (key == Chr(27) && !fncts_.ArretUrg && calculEnCours_) {
        Stop();
        fncts_.PlayT(fncts_.Zoum, true);
    }
}

// Ends the body that the failure has cut short as if it had been stopped.
void Calculation::ThreadFailed(const std::string& reason) {
    Stop();
    thrNo_ = task_->step;
    timerThr_.Mode = TimerMode::Single;
    fncts_.ReportFault("Thread, " + reason);
}

void Calculation::GiveUpAfter(std::int64_t ticks) {
    TicksFinCalc = services_.clock.Ticks() + ticks;
}

RunControl Calculation::MakeRunControl(bool checkTime) {
    return RunControl(fncts_.ArretUrg, services_.clock, services_.memory,
        checkTime ? std::optional(TicksFinCalc) : std::nullopt, &Progress.Goal);
}

void Calculation::DecompPremCalc(std::uint64_t n, std::vector<std::uint64_t>& factors, bool checkTime) {
    RunControl control = MakeRunControl(checkTime);
    tessarolyne::DecompPremCalc(n, table_, factors, control);
    lastRunEnd_ = control.End();
}

std::uint64_t Calculation::NbresPremCalc(std::uint64_t limit, bool checkTime) {
    RunControl control = MakeRunControl(checkTime);
    const std::uint64_t last = tessarolyne::NbresPremCalc(table_, limit, control);
    lastRunEnd_ = control.End();
    return last;
}

void Calculation::TellWhyRunEnded() {
    const RunEnd end = std::exchange(lastRunEnd_, RunEnd::Finished);
    if (end == RunEnd::OutOfMemory || end == RunEnd::TableFull) {
        fncts_.MsgBox(std::string(end == RunEnd::TableFull ? tableFullText : outOfMemoryText));
    }
}

void Calculation::AnnounceRunEnded(const std::string& resultat) {
    if (task_->isAskedFor || services_.clock.Milliseconds() - runBegan_ >= longRun) {
        EndAnnounced();
        fncts_.Announce(fncts_.ArretUrg ? Localisation::Txt_CalculArrete()
                                        : fncts_.FracTexte(Localisation::Txt_CalculFini(), 1) + resultat);
    }
}

} // namespace tessarolyne

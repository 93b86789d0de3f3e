#include "primes/Calculation.h"

#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "platform/Numbers.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "primes/engine/Factors.h"
#include "primes/engine/PrimeGrowth.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"

#include <utility>

namespace tessarolyne {

namespace {

// In milliseconds.
constexpr int handOverPeriod = 1;
constexpr int waitingPeriod = 50; // while the thread or a dialog keeps the result waiting
constexpr int longRun = 1000;     // by then nobody waits for the result any more

} // namespace

Calculation::Calculation(Fncts& fncts, Services& services, PrimeTable& table, const CheckBox& formatAuto)
    : Progress(services.loop, services.desktop, table, formatAuto), fncts_(fncts), services_(services),
      table_(table), timerThr_(services.loop, handOverPeriod), worker_(services.loop) {
    timerThr_.Action = [this] { TimerThr_Action(); };
    worker_.Run = [this] {
        task_->body(task_->ThrPn1);
        thrNo_ = task_->step;
        timerThr_.Mode = 1;
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
        timerThr_.Mode = 1;
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
    timerThr_.Mode = 1;
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

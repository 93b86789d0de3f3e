// What a thread computes, how its result comes to the main thread, and how a run is stopped.

#include "app/Program.h"
#include "conversion/WinMain.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "primes/WinNbresPremiers.h"

#include <utility>

namespace tessarolyne {

namespace {

constexpr int waitingPeriod = 50; // milliseconds, while the thread or a dialog keeps the result waiting

} // namespace

void WinMain::ThreadDecPrems_Run(Thread&) {
    DecompPremCalc(ThrPn1, false);
    ThrNo = factorsAreThere;
    TimerThr.Mode = 1;
}

void WinMain::TimerThr_Action(Timer& timer) {
    if (ThreadDecPrems.State() == Thread::running || fncts.DrapDiagBox) {
        timer.Period = waitingPeriod;
        timer.Mode = 1;
        return;
    }
    if (timer.Period != handOverPeriod) {
        timer.Period = handOverPeriod;
        timer.Mode = 0;
    }
    if (ThrNo == factorsAreThere) {
        HoldMenuForCalculation(false);
        TurnWheel(factorsTakeTime_, false);
        Progress.End();
        DecompPremFin(ThrPn1);
        AnnounceRunEnded(TxtAreaDecomp1er.Text);
    } else if (ThrNo == listRunHasEnded) {
        program.winNbresPremiers().ButtCalcPremsFin();
    } else {
        fncts.MsgBox("Error ! Please contact the authors, TimerThr" + std::string(endOfLine) + "ThrNo " +
                     Str(ThrNo) + " , Which Case ?");
    }
}

void WinMain::StopOnEscape(const std::string& key) {
    if (key == Chr(27) && !fncts.ArretUrg && CalculEnCours) {
        fncts.ArretUrg = true;
        fncts.PlayT(fncts.Zoum, true);
    }
}

void WinMain::ThreadFailed(std::int16_t step, const std::string& reason) {
    fncts.ArretUrg = true;
    Nbre_Decompose = {0};
    ThrNo = step;
    TimerThr.Mode = 1;
    fncts.ReportFault("Thread, " + reason);
}

void WinMain::TellWhyRunEnded() {
    const RunEnd end = std::exchange(lastRunEnd_, RunEnd::Finished);
    if (end == RunEnd::OutOfMemory || end == RunEnd::TableFull) {
        fncts.MsgBox(std::string(end == RunEnd::TableFull ? tableFullText : outOfMemoryText));
    }
}

} // namespace tessarolyne

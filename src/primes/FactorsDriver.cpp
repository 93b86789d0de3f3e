// The factors of the number: on the main thread within half a second, or on the thread for as long as it
// takes.

#include "app/Program.h"
#include "conversion/NumberFormat.h"
#include "conversion/WinMain.h"
#include "platform/Clock.h"
#include "platform/Numbers.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "primes/WinNbresPremiers.h"
#include "primes/engine/Factors.h"
#include "primes/engine/PrimeGrowth.h"
#include "ui/Localisation.h"

#include <functional>
#include <numeric>

namespace tessarolyne {

namespace {

constexpr std::int64_t ticksForTyping = 30; // half a second

} // namespace

void WinMain::DecompPremDeb(bool force) {
    CalculEnCours = true;
    fncts.ArretUrg = false;
    PushButtDecomposer.Enabled = false;
    const std::string decimal = WithoutBlanks(EditFieldNbre.Text());
    const double n = CDbl(decimal);
    if (decimal.empty() || !IsNumeric(decimal) || !(n > 0) || n != Round(n)) {
        Write(factors_, decimal.empty() ? "" : Localisation::Txt_ErrNbre(), OnlyCentsAreWrong());
        CalculEnCours = false;
        return;
    }
    if (force || static_cast<double>(Nbres_Premiers.Back()) > n) {
        RunFactorsOnThread(ToUInt64(n), force);
        return;
    }
    TicksFinCalc = program.services.clock.Ticks() + ticksForTyping;
    DecompPremCalc(ToUInt64(n), true);
    DecompPremFin(ToUInt64(n));
}

void WinMain::RunFactorsOnThread(std::uint64_t n, bool isAskedFor) {
    NoteRunBegins(isAskedFor);
    TurnWheel(factorsTakeTime_, true);
    Write(factors_, Localisation::Txt_Attente());
    HoldMenuForCalculation(true);
    ThrPn1 = n;
    Progress.Follow(ProgressWheel1, StaticTextAvance, 0);
    ThreadDecPrems.Start();
}

RunControl WinMain::MakeRunControl(bool checkTime) {
    return RunControl(fncts.ArretUrg, program.services.clock, program.services.memory,
        checkTime ? std::optional(TicksFinCalc) : std::nullopt, &Progress.Goal);
}

void WinMain::DecompPremCalc(std::uint64_t n, bool checkTime) {
    RunControl control = MakeRunControl(checkTime);
    tessarolyne::DecompPremCalc(n, Nbres_Premiers, Nbre_Decompose, control);
    lastRunEnd_ = control.End();
}

std::uint64_t WinMain::NbresPremCalc(std::uint64_t limit, bool checkTime) {
    RunControl control = MakeRunControl(checkTime);
    const std::uint64_t last = tessarolyne::NbresPremCalc(Nbres_Premiers, limit, control);
    lastRunEnd_ = control.End();
    return last;
}

std::string WinMain::FactorsText(bool grouped) const {
    std::string text;
    for (const std::uint64_t factor : Nbre_Decompose) {
        text += (text.empty() ? "" : " x ") + FormatWhole(factor, grouped);
    }
    return text;
}

void WinMain::DecompPremFin(std::uint64_t n) {
    std::string text;
    if (Nbre_Decompose.front() == 0 || fncts.ArretUrg) {
        text = Localisation::Txt_PourLesGdsNbres();
        PushButtDecomposer.Enabled = true;
        TellWhyRunEnded();
        if (BevelButtonListe.Value) {
            program.winNbresPremiers().ShowBinding();
        }
    } else {
        text = FactorsText(CheckBoxFormatAuto.Value);
        const std::uint64_t product = std::accumulate(
            Nbre_Decompose.begin(), Nbre_Decompose.end(), std::uint64_t{1}, std::multiplies());
        if (product != n) {
            ReportFactorMismatch(product, n);
        }
        if (BevelButtonListe.Value) {
            program.winNbresPremiers().FaireListe(false, false);
        }
    }
    Write(factors_, text);
    CalculEnCours = false;
}

void WinMain::ReportFactorMismatch(std::uint64_t product, std::uint64_t n) {
    const std::string mismatch = FormatWhole(product, true) + " ≠ " + FormatWhole(n, true);
    if (mismatch == MemErrDecomp) {
        return;
    }
    MemErrDecomp = mismatch;
    fncts.Beep();
    const auto piece = [this](
                           int number) { return fncts.FracTexte(Localisation::Txt_ErrDeDecomp(), number); };
    fncts.MyDialogBox(piece(1) + FormatWhole(n, true) + piece(2) + FormatWhole(product, true) + piece(3),
        Localisation::Txt_MerciContactAuteur(), Localisation::Btn_Ok(), "", "", 1, nullptr);
    PushButtDecomposer.Enabled = true;
}

} // namespace tessarolyne

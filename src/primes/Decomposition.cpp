#include "primes/Decomposition.h"

#include "platform/Numbers.h"
#include "platform/Text.h"
#include "primes/Calculation.h"
#include "primes/engine/PrimeTable.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"
#include "ui/NumberField.h"
#include "ui/WrittenNumber.h"

#include <numeric>

namespace tessarolyne {

namespace {

constexpr std::int64_t ticksForTyping = 30; // half a second

} // namespace

Decomposition::Decomposition(const DecompositionControls& controls, NumberOutput& factors,
    Calculation& calculation, const PrimeTable& table, Fncts& fncts)
    : DecompositionControls(controls), factors_(factors), calculation_(calculation), table_(table),
      fncts_(fncts) {}

void Decomposition::DecompPremDeb(bool force) {
    calculation_.Begin();
    PushButtDecomposer.Enabled = false;
    const std::string decimal = WithoutBlanks(EditFieldNbre.Text());
    const double n = CDbl(decimal);
    if (decimal.empty() || !IsNumeric(decimal) || !(n > 0) || n != Round(n)) {
        factors_.Write(decimal.empty() ? "" : Localisation::Txt_ErrNbre(), OnlyCentsAreWrong(EditFieldNbre));
        calculation_.End();
        return;
    }
    if (force || static_cast<double>(table_.Back()) > n) {
        RunOnThread(ToUInt64(n), force);
        return;
    }
    calculation_.GiveUpAfter(ticksForTyping);
    calculation_.DecompPremCalc(ToUInt64(n), Nbre_Decompose, true);
    DecompPremFin(ToUInt64(n));
}

void Decomposition::RunOnThread(std::uint64_t n, bool isAskedFor) {
    TakesTime(true);
    factors_.Write(Localisation::Txt_Attente());
    const auto body = [this](std::uint64_t number) {
        calculation_.DecompPremCalc(number, Nbre_Decompose, false);
    };
    const auto whenOver = [this](std::uint64_t number) {
        TakesTime(false);
        DecompPremFin(number);
        calculation_.AnnounceRunEnded(TxtAreaDecomp1er.Text);
    };
    calculation_.RunOnThread(
        {Calculation::factorsAreThere, n, ProgressWheel1, StaticTextAvance, 0, isAskedFor, body, whenOver});
}

std::string Decomposition::FactorsText(bool grouped) const {
    std::string text;
    for (const std::uint64_t factor : Nbre_Decompose) {
        text += (text.empty() ? "" : " x ") + FormatWhole(factor, grouped);
    }
    return text;
}

// The area may hold something else: nothing, an error, the hint to use the button.
void Decomposition::Regroup(bool grouped) {
    if (TxtAreaDecomp1er.Text == FactorsText(!grouped)) {
        TxtAreaDecomp1er.Text = FactorsText(grouped);
    }
}

void Decomposition::DecompPremFin(std::uint64_t n) {
    std::string text;
    // A thread that failed may have left no factor at all.
    if (fncts_.ArretUrg || Nbre_Decompose.front() == 0) {
        Nbre_Decompose = {0};
        text = Localisation::Txt_PourLesGdsNbres();
        PushButtDecomposer.Enabled = true;
        calculation_.TellWhyRunEnded();
        TableMayHaveGrown(false);
    } else {
        text = FactorsText(CheckBoxFormatAuto.Value);
        const std::uint64_t product = std::accumulate(
            Nbre_Decompose.begin(), Nbre_Decompose.end(), std::uint64_t{1}, std::multiplies());
        if (product != n) {
            const std::string shown = FormatWhole(n, true);
            const std::string recomposed = FormatWhole(product, true);
            if (fncts_.WarnOfMismatch(memErrDecomp_, recomposed + " ≠ " + shown,
                    fncts_.Filled(Localisation::Txt_ErrDeDecomp(), {shown, recomposed}))) {
                PushButtDecomposer.Enabled = true;
            }
        }
        TableMayHaveGrown(true);
    }
    factors_.Write(text);
    calculation_.End();
}

} // namespace tessarolyne

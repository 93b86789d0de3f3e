#pragma once

#include "platform/TextControls.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tessarolyne {

class Calculation;
class Fncts;
class NumberOutput;
class PrimeTable;

// The main window's controls that the factors depend on or appear in.
struct DecompositionControls {
    TextField& EditFieldNbre;
    TextArea& TxtAreaDecomp1er;
    PushButton& PushButtDecomposer;
    CheckBox& CheckBoxFormatAuto;
    ProgressWheel& ProgressWheel1;
    Label& StaticTextAvance;
};

// The factors of the number: on the main thread within half a second, or on the thread for as long as it
// takes.
class Decomposition : private DecompositionControls {
public:
    Decomposition(const DecompositionControls& controls, NumberOutput& factors, Calculation& calculation,
        const PrimeTable& table, Fncts& fncts);

    // Starts a factorisation of what EditFieldNbre holds; `force` sends it to the thread without a time
    // limit.
    void DecompPremDeb(bool force);
    // Checks and shows the factors of `n`, and ends the calculation.
    void DecompPremFin(std::uint64_t n);
    // Shows the factors with groups or without, where they are what is shown.
    void Regroup(bool grouped);

    std::vector<std::uint64_t> Nbre_Decompose{0}; // the factors; a single 0: none

    Event<void(bool)> TakesTime;         // turns the wheel
    Event<void(bool)> TableMayHaveGrown; // with whether the factors are there

private:
    void RunOnThread(std::uint64_t n, bool isAskedFor);
    std::string FactorsText(bool grouped) const;

    NumberOutput& factors_;
    Calculation& calculation_;
    const PrimeTable& table_;
    Fncts& fncts_;
    std::string memErrDecomp_; // the last mismatch that was reported
};

} // namespace tessarolyne

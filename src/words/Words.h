#pragma once

#include "platform/TextControls.h"

namespace tessarolyne {

class App;
class Fncts;
class NumberOutput;

// The main window's controls that decide the words.
struct WordsControls {
    TextField& EditFieldNbre;
    TextField& EditFieldMonnaies;
    TextField& EditFieldMonnaie;
    TextField& EditFieldCentimes;
    TextField& EditFieldCentime;
    CheckBox& CheckBoxMajusc;
    CheckBox& CheckBoxTrUnion;
    PopupMenu& PopupMenuLg;
};

// The amount in words: what the controls say goes to the spelling, and the text into the output.
class Words : private WordsControls {
public:
    Words(const WordsControls& controls, NumberOutput& output, App& app, Fncts& fncts);

    // Writes the amount in words.
    void ConvNbreLettresD();
    // Offers to put the language's own currency back.
    void ResetCurrencies();

    Event<void()> Recomputed; // after a change of the currency, the language or the form

private:
    void Recompute();

    NumberOutput& output_;
    App& app_;
    Fncts& fncts_;
};

} // namespace tessarolyne

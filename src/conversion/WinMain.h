#pragma once

#include "app/Quitting.h"
#include "app/Settings.h"
#include "app/UpdateCheck.h"
#include "conversion/NumberEntry.h"
#include "platform/Controls.h"
#include "platform/TextControls.h"
#include "primes/Calculation.h"
#include "primes/Decomposition.h"
#include "primes/PrimeFileBinding.h"
#include "ui/BlockingOverlay.h"
#include "ui/NumberField.h"
#include "ui/ProgramWindow.h"
#include "words/Words.h"

#include <array>
#include <string>

namespace tessarolyne {

// The one window that is always there, as a record of its controls and their layout: the number that the user
// works on, and its forms. What happens to them is the doing of its subjects.
class WinMain final : public ProgramWindow {
public:
    explicit WinMain(Program& owner);

    // --- Controls, in the order in which they are made ---

    TextField EditFieldNbre{*this, "EditFieldNbre", {36, 14, 320, 22}, lockLeftTop, TabStop(0)};

    GroupBox GroupBoxLettre{*this, "GroupBoxLettre", {20, 385, 510, 184}, lockLeftTopRight, TabStop(9)};
    PushButton PushButtonPressPapLettr{
        *this, "PushButtonPressPapLettr", {482, 507, 32, 20}, lockTopRight, NoTabStop(0), &GroupBoxLettre};
    TextField EditFieldMonnaies{
        *this, "EditFieldMonnaies", {36, 507, 80, 22}, lockLeftTop, TabStop(2), &GroupBoxLettre};
    TextField EditFieldMonnaie{
        *this, "EditFieldMonnaie", {128, 507, 80, 22}, lockLeftTop, TabStop(3), &GroupBoxLettre};
    TextField EditFieldCentimes{
        *this, "EditFieldCentimes", {230, 507, 80, 22}, lockLeftTop, TabStop(4), &GroupBoxLettre};
    TextField EditFieldCentime{
        *this, "EditFieldCentime", {322, 507, 80, 22}, lockLeftTop, TabStop(5), &GroupBoxLettre};
    TextArea TxtAreaLettres{
        *this, "TxtAreaLettres", {36, 415, 478, 80}, lockLeftTopRight, NoTabStop(8), &GroupBoxLettre};
    CheckBox CheckBoxMajusc{
        *this, "CheckBoxMajusc", {36, 538, 272, 20}, lockLeftTop, TabStop(9), &GroupBoxLettre};
    PopupMenu PopupMenuLg{
        *this, "PopupMenuLg", {398, 538, 80, 20}, lockLeftTop, TabStop(10), &GroupBoxLettre};
    CheckBox CheckBoxTrUnion{
        *this, "CheckBoxTrUnion", {322, 538, 48, 20}, lockLeftTop, TabStop(11), &GroupBoxLettre};

    GroupBox GroupBox1{*this, "GroupBox1", {20, 57, 510, 128}, lockLeftTopRight, TabStop(1)};
    PopupMenu PopupMenuBaseOrg{
        *this, "PopupMenuBaseOrg", {368, 87, 100, 20}, lockLeftTop, NoTabStop(0), &GroupBox1};
    PopupMenu PopupMenuBaseDest{
        *this, "PopupMenuBaseDest", {368, 122, 100, 20}, lockLeftTop, NoTabStop(3), &GroupBox1};
    std::array<RadioButton, 2> RadioButton09AZ{
        RadioButton{*this, "RadioButton09AZ", {36, 155, 128, 20}, lockLeftTop, NoTabStop(4), &GroupBox1},
        RadioButton{*this, "RadioButton09AZ", {190, 155, 128, 20}, lockLeftTop, NoTabStop(5), &GroupBox1}};
    PushButton PushButtonPressPapBOrg{
        *this, "PushButtonPressPapBOrg", {482, 86, 32, 20}, lockTopRight, NoTabStop(6), &GroupBox1};
    PushButton PushButtonPressPapBDest{
        *this, "PushButtonPressPapBDest", {482, 121, 32, 20}, lockTopRight, NoTabStop(7), &GroupBox1};
    TextField EditFieldBaseDest{
        *this, "EditFieldBaseDest", {36, 121, 320, 22}, lockLeftTop, NoTabStop(0), &GroupBox1};
    TextField EditFieldBaseOrg{
        *this, "EditFieldBaseOrg", {36, 86, 320, 22}, lockLeftTop, TabStop(2), &GroupBox1};

    GroupBox GroupBox2{*this, "GroupBox2", {20, 207, 510, 156}, lockLeftTopRight, TabStop(11)};
    BevelButton BevelButtonListe{
        *this, "BevelButtonListe", {155, 330, 100, 21}, lockLeftTop, NoTabStop(0), &GroupBox2};
    PushButton PushButtDecomposer{
        *this, "PushButtDecomposer", {36, 330, 107, 20}, lockLeftTop, NoTabStop(1), &GroupBox2};
    PushButton PushButtonPressPapPrem{
        *this, "PushButtonPressPapPrem", {482, 329, 32, 20}, lockTopRight, NoTabStop(2), &GroupBox2};
    TextArea TxtAreaDecomp1er{
        *this, "TxtAreaDecomp1er", {36, 237, 478, 80}, lockLeftTopRight, NoTabStop(7), &GroupBox2};

    Label StaticTextEnBase10{*this, "StaticTextEnBase10", {368, 15, 104, 20}, lockLeftTop, TabStop(12)};
    CheckBox CheckBoxFormatAuto{*this, "CheckBoxFormatAuto", {366, 34, 128, 20}, lockLeftTop, NoTabStop(13)};
    ProgressWheel ProgressWheel1{*this, "ProgressWheel1", {514, 14, 16, 16}, lockTopRight, NoTabStop(16)};
    // How far a calculation is, above the wheel; and below the number that one typed waits for its end.
    Label StaticTextAvance{*this, "StaticTextAvance", {300, 0, 230, 14}, lockTopRight, NoTabStop(16)};
    Label StaticTextEnAttente{*this, "StaticTextEnAttente", {36, 36, 320, 18}, lockLeftTop, NoTabStop(16)};
    BlockingOverlay LabBlockUI{*this, fncts, TabStop(17)};

    // --- What the window's controls are about; the windows share it ---

    PrimeFileBinding primeFile{program};
    Decomposition decomposition;
    Words words;
    NumberEntry entry;
    Settings settings{*this, app, fncts};
    Quitting quitting;
    UpdateCheck updateCheck;

    // Brings the menus and the controls of both windows in line with Fncts::DrapMenu.
    void EnableMenuBoutons();

    void Event_Open() override;
    bool Event_CancelClose(bool appQuitting) override;
    void Event_EnableMenuItems() override;
    bool Event_KeyDown(const std::string& key) override;

    void CheckBoxFormatAuto_Action();
    void PushButtonPressPapLettr_Action();
    void BevelButtonListe_Action();
    void PushButtDecomposer_Action();

private:
    void BindEvents();
    void BindSubjects();
    void SetInitialState();
    void NameForScreenReaders();
    void GiveAltKeys();
    void AddMenuHandlers();
    void UsePrimeFile(bool load);
    void AideAide_Action();
    void AddCopyShortcuts();
    void OfferBaseCopies(TextField& source, const PopupMenu& baseMenu);
    void TurnWheel(bool& reason, bool on);

    bool FindPreferencesFolder();
    void SweepLeftovers();
    void Welcome(bool premierLancement);

    // ProgressWheel1 turns as long as either holds.
    bool factorsTakeTime_ = false;
    bool checkTakesTime_ = false;
    NumberOutput factorsOutput_{TxtAreaDecomp1er, EditFieldNbre};
    NumberOutput wordsOutput_{TxtAreaLettres, EditFieldNbre};

public:
    // Last, so that its thread is joined before anything goes that a task uses.
    Calculation calculation;
};

} // namespace tessarolyne

#pragma once

#include "conversion/NumberHistory.h"
#include "conversion/TypedBase.h"
#include "platform/BevelButton.h"
#include "platform/CheckBox.h"
#include "platform/GroupBox.h"
#include "platform/Http.h"
#include "platform/Label.h"
#include "platform/PopupMenu.h"
#include "platform/ProgressWheel.h"
#include "platform/PushButton.h"
#include "platform/RadioButton.h"
#include "platform/TextArea.h"
#include "platform/TextField.h"
#include "platform/Timer.h"
#include "primes/Calculation.h"
#include "primes/Decomposition.h"
#include "primes/engine/BoundFile.h"
#include "primes/engine/PrimeTable.h"
#include "ui/BlockingOverlay.h"
#include "ui/NumberField.h"
#include "ui/NumberOutput.h"
#include "ui/ProgramWindow.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarolyne {

class MenuItem;

// The one window that is always there: the number that the user works on, its forms, and what the whole
// program shares: the table of primes, the flags of a calculation, the timers, a worker thread and the
// fetcher of the update check. Each .cpp that defines its operations has one subject and is named by it.
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

    Timer TimerTempo;
    Timer TimerQuit;
    Timer TimerVerMaJ;
    HTTPSocket SocketVerMaJ;

    // How soon TimerVerMaJ hands over what has come, in milliseconds.
    static constexpr int handOverPeriod = 1;

    // --- Properties ---

    PrimeTable Nbres_Premiers;         // the table of primes, rising from 2
    std::uint32_t Nb_NbrePcharg = 0;   // how many of its entries agree with the prime file
    BoundFile PrimeFile;               // what is known of the prime file's content
    bool FocusNbre = false;            // EditFieldNbre is being edited
    bool FocusBase = false;            // EditFieldBaseOrg is being edited
    std::int16_t NbreNbPparLigne = 10; // primes per line in the prime file
    bool DrapTimerNbre = true;         // the source of the number: EditFieldNbre, else EditFieldBaseOrg
    std::string MemErrConv;            // the last mismatch of a base conversion that was reported

    Decomposition decomposition;

    // --- Operations that others call ---

    // Computes every output again from the field that is the source of the number.
    void ChangeNbre();
    // Reads the source field in its base and writes the other number fields, or what is wrong in all outputs.
    void ConvNbreBaseD();
    // Tells, once in a row, that a number has other digits in `baseDest` from one field than from the other.
    void ReportConversionMismatch(
        const std::string& fromDecimal, int baseDest, const std::string& fromSource, int baseOrg);
    // The digits in `baseDest` of a number given in `baseOrg`, or the text of an error.
    std::string ConvNbreBase(std::string_view nombre, int baseOrg, int baseDest, std::string_view alphabet);
    // A decimal number as it is shown; a text that is no number comes back unchanged.
    std::string FormatNbre(std::string_view nombre, bool formatAuto);
    // Digits in a base as they are shown.
    std::string FormatType(std::string_view nombre, int base, bool formatAuto);
    // Brings the menus and the controls of both windows in line with Fncts::DrapMenu.
    void EnableMenuBoutons();
    // Writes the amount in words.
    void ConvNbreLettresD();
    // Adds the other ways to copy a number to the control's context menu; those of its base only with the
    // menu that chooses one.
    void OfferCopies(TextControl& source, PopupMenu* baseMenu = nullptr);
    // Asks whether to stop the running calculation and quit; on yes, TimerQuit waits for its end.
    void AskToStopCalculation();
    // What the signal or the session's end leaves time for: the settings, and new primes if a file is bound.
    void SaveWithoutAsking();

    // --- Events ---

    void Event_Open() override;
    bool Event_CancelClose(bool appQuitting) override;
    void Event_EnableMenuItems() override;
    bool Event_KeyDown(const std::string& key) override;

    void EditFieldNbre_GotFocus(TextField& champ);
    void EditFieldNbre_LostFocus(TextField& champ);
    void EditFieldNbre_TextChange(TextField& champ, ChangedBy who);
    bool EditFieldNbre_KeyDown(TextField& champ, const std::string& key);
    void EditFieldBaseOrg_GotFocus(TextField& champ);
    void EditFieldBaseOrg_LostFocus(TextField& champ);
    void EditFieldBaseOrg_TextChange(TextField& champ, ChangedBy who);
    bool EditFieldBaseOrg_KeyDown(TextField& champ, const std::string& key);
    bool PopupMenuBase_KeyDown(PopupMenu& menu, const std::string& key);
    void PopupMenuBaseOrg_Change(PopupMenu& menu);
    void PopupMenuBaseDest_Change(PopupMenu& menu);
    void RadioButton09AZ_Action(RadioButton& bouton, int index);
    void CheckBoxFormatAuto_Action(CheckBox& bouton);
    void PushButtonPressPapBOrg_Action(PushButton& bouton);
    void PushButtonPressPapBDest_Action(PushButton& bouton);
    void PushButtonPressPapPrem_Action(PushButton& bouton);
    void PushButtonPressPapLettr_Action(PushButton& bouton);
    void BevelButtonListe_Action(BevelButton& bouton);
    void PushButtDecomposer_Action(PushButton& bouton);
    void EditFieldMonnaies_TextChange(TextField& champ);
    void EditFieldMonnaie_TextChange(TextField& champ);
    void EditFieldCentimes_TextChange(TextField& champ);
    void EditFieldCentime_TextChange(TextField& champ);
    void CheckBoxMajusc_Action(CheckBox& bouton);
    void CheckBoxTrUnion_Action(CheckBox& bouton);
    void PopupMenuLg_Change(PopupMenu& menu);
    void TimerTempo_Action(Timer& timer);
    void TimerQuit_Action(Timer& timer);
    bool FichChoixFichNbP_Action();
    bool FichSauvFichNbP_Action();
    void SocketVerMaJ_PageReceived(HTTPSocket& sender, const std::string& url, int httpStatus,
        const std::string& headers, const std::string& content);
    void SocketVerMaJ_Error(HTTPSocket& sender, int code);
    void TimerVerMaJ_Action(Timer& sender);

    // The menu's commands. Each acts only if its item is enabled, since a shortcut reaches it also when it
    // isn't, and says in any case that the command was handled.
    bool AppleAPropos_Action();
    bool AideAide_Action();
    bool AppleDon_Action();
    bool ApplePrefs_Action();
    bool AppleVMaJ_Action();

private:
    void BindEvents();
    void BindCommandEvents();
    void BindUpdateCheck();
    void SetInitialState();
    void NameForScreenReaders();
    void GiveAltKeys();
    void AddMenuHandlers();
    void AddHelpMenuHandlers();
    bool MenuItemIsEnabled(const char* name) const;

    bool FindPreferencesFolder();
    void SweepLeftovers();
    void Welcome(bool premierLancement);
    void StartAutomaticCheck();
    void FetchVersionFile();
    void VersionFileHasCome();
    void TurnWheel(bool& reason, bool on);

    bool ConvertDecimal(std::string& decimal, std::string& source, int baseOrg, std::string_view alphabet);
    void ConvertSourceBase(std::string& decimal, std::string& source, int baseOrg, std::string_view alphabet);
    void ShowDestination(
        const std::string& decimal, const std::string& source, int baseOrg, std::string_view alphabet);
    bool IsErrorText(std::string_view text) const;
    void ConvertAgain();
    void TakeAsSource(bool isDecimal, ChangedBy who);
    std::string_view Alphabet() const;
    std::string SourceDigits() const;
    bool TakeBaseEdit(TextEdit& edit);
    std::string NumberIn(const TextField& champ);
    void FollowEdits(TextField& champ);
    void NoteNumber(const TextField& champ);
    std::optional<std::string> NumberToRecall(const TextField& champ, bool earlier);
    bool RecallNumber(TextField& champ, const std::string& key);

    int AskOnTheWayOut(const std::string& message, const std::string& explanation, const std::string& action,
        const std::string& cancel, const std::string& alternate, int icon);
    bool AskAboutNewPrimes(bool& enregistrer);
    void StayOpen();
    void DecideClose(bool enregistrer);

    void RecomputeWords();
    void ResetCurrencies();
    void AddCopyShortcuts();

    NumberField numberField_{EditFieldNbre, fncts};
    void BindAnnouncements();
    void AnnounceResultAfterPause();
    void AnnounceResult();

    Timer typingPause_; // until the user is taken to have typed all
    // The output that the user went to last, whose text is announced.
    TextControl* outputOfInterest_ = &TxtAreaLettres;
    NumberHistory history_;
    bool recalling_ = false;     // the edit under way brings an earlier number back
    bool deleting_ = false;      // so did the user at the last edit
    std::string beforeDeletion_; // the number that stood there before
    TypedBase typedBase_;
    bool startIsOver_ = false; // there are settings to save; unlike App.initProg it stays up
    bool quitQuestionIsUp_ = false;
    int turnsWaited_ = 0;           // of TimerTempo, by a number for the end of a calculation
    bool recalculationDue_ = false; // a change of the number that a quit under way has put off
    // ProgressWheel1 turns as long as either holds.
    bool factorsTakeTime_ = false;
    bool checkTakesTime_ = false;
    Timer slowCheck_; // until a check from the menu has to show that it is under way
    int fetchesUnderWay_ = 0;
    NumberOutput factors_{TxtAreaDecomp1er, EditFieldNbre};
    NumberOutput words_{TxtAreaLettres, EditFieldNbre};

public:
    // Last, so that its thread is joined before anything goes that a task uses.
    Calculation calculation;
};

} // namespace tessarolyne

#pragma once

#include "conversion/NumberHistory.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "platform/TextControls.h"
#include "ui/NumberField.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tessarolyne {

class App;
class Calculation;
class Clock;
class Decomposition;
class Fncts;
class NumberOutput;
class Words;
struct Services;

// The main window's controls that take or show the number, and what else follows from it.
struct NumberControls {
    TextField& EditFieldNbre;
    TextField& EditFieldBaseOrg;
    TextField& EditFieldBaseDest;
    PopupMenu& PopupMenuBaseOrg;
    PopupMenu& PopupMenuBaseDest;
    std::array<RadioButton, 2>& RadioButton09AZ;
    CheckBox& CheckBoxFormatAuto;
    TextArea& TxtAreaDecomp1er;
    TextArea& TxtAreaLettres;
    Label& StaticTextEnAttente;
    NumberOutput& factors;
    NumberOutput& words;
    Decomposition& decomposition;
    Words& spelling;
};

// The number that the user types, in one field or the other: which of them is its source, what the other
// shows in its base, and when all outputs are computed again.
class NumberEntry : private NumberControls {
public:
    NumberEntry(
        const NumberControls& controls, Calculation& calculation, App& app, Fncts& fncts, Services& services);

    // Takes the number from EditFieldNbre, which has the focus, as the start leaves it.
    void Begin();
    // Reads the source field in its base and writes the other number fields, or what is wrong in all outputs.
    void ConvNbreBaseD();
    // Writes the fields that aren't being edited with groups or without.
    void Regroup(bool grouped);
    // Tells, once in a row, that a number has other digits in `baseDest` from one field than from the other.
    void ReportConversionMismatch(
        const std::string& fromDecimal, int baseDest, const std::string& fromSource, int baseOrg);
    // The alphabet of digits that is chosen.
    std::string_view Alphabet() const;

    // A quit puts a change of the number off; one that is declined goes on with it.
    void PutOff();
    void GoOn();
    Event<bool()> QuitIsUnderWay;

    // Has a screen reader told what typing has given, after a pause; or not, as it is told otherwise.
    void AnnounceResultAfterPause();
    void ForgetPause() { typingPause_.Mode = TimerMode::Off; }

private:
    void BindEvents();
    void GotFocus(TextField& champ);
    void LostFocus(TextField& champ);
    void ShowFormatted(TextField& champ, bool grouped);
    bool& IsBeingEdited(const TextField& champ);
    bool PopupMenuBase_KeyDown(PopupMenu& menu, const std::string& key);
    void TimerTempo_Action();
    void ChangeNbre();

    bool ConvertDecimal(std::string& decimal, std::string& source);
    bool ConvertSourceBase(std::string& decimal, std::string& source);
    void ShowDestination(const std::string& decimal, const std::string& source);
    void ShowDigits(TextField& champ, const std::string& digits, int base);
    void ConvertAgain();
    int BaseOrg() const;
    int BaseDest() const;
    void TakeAsSource(bool isDecimal, ChangedBy who);
    std::string SourceDigits() const;
    bool TakeBaseEdit(TextEdit& edit);
    std::string NumberIn(const TextField& champ);
    void FollowEdits(TextField& champ);
    void NoteNumber(const TextField& champ);
    std::optional<std::string> NumberToRecall(const TextField& champ, bool earlier);
    bool RecallNumber(TextField& champ, const std::string& key);
    void AnnounceResult();

    Calculation& calculation_;
    App& app_;
    Fncts& fncts_;
    const Clock& clock_;
    bool focusNbre_ = false;        // EditFieldNbre is being edited
    bool focusBase_ = false;        // EditFieldBaseOrg is being edited
    bool drapTimerNbre_ = true;     // the source of the number: EditFieldNbre, else EditFieldBaseOrg
    std::string memErrConv_;        // the last mismatch that was reported
    Timer timerTempo_;              // until a change of the number is dealt with
    int turnsWaited_ = 0;           // of TimerTempo, by a number for the end of a calculation
    bool recalculationDue_ = false; // a change of the number that a quit under way has put off
    Timer typingPause_;             // until the user is taken to have typed all
    TextControl* outputOfInterest_; // the output that the user went to last, whose text is announced
    NumberField numberField_;
    NumberHistory history_;
    bool recalling_ = false;     // the edit under way brings an earlier number back
    bool deleting_ = false;      // so did the user at the last edit
    std::string beforeDeletion_; // the number that stood there before
    int firstDigit_ = 0;         // of a base that is being typed; 0: none
    std::int64_t digitTypedAt_ = 0;
};

} // namespace tessarolyne

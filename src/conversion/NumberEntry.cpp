// From a keystroke in one of the two number fields to the recalculation of everything.

#include "conversion/NumberEntry.h"

#include "conversion/BaseConversion.h"
#include "platform/Numbers.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "primes/Calculation.h"
#include "primes/Decomposition.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"
#include "ui/Program.h"
#include "words/Words.h"

#include <initializer_list>

namespace tessarolyne {

namespace {

// In milliseconds.
constexpr int recalculationDelay = 20; // shorter than the time between two keystrokes
constexpr int typingPause = 1000;
constexpr int waitToBeSeen = 500;
constexpr int pauseInBase = 1000;

} // namespace

NumberEntry::NumberEntry(
    const NumberControls& controls, Calculation& calculation, App& app, Fncts& fncts, Services& services)
    : NumberControls(controls), calculation_(calculation), app_(app), fncts_(fncts), clock_(services.clock),
      timerTempo_(services.loop, recalculationDelay), typingPause_(services.loop, typingPause),
      outputOfInterest_(&TxtAreaLettres), numberField_(EditFieldNbre, fncts) {
    EditFieldBaseOrg.TakeEdit = [this](TextEdit& edit) { return TakeBaseEdit(edit); };
    FollowEdits(EditFieldNbre);
    FollowEdits(EditFieldBaseOrg);
    BindEvents();
    for (TextControl* output :
        std::initializer_list<TextControl*>{&EditFieldBaseDest, &TxtAreaDecomp1er, &TxtAreaLettres}) {
        output->GotFocus = [this, output] { outputOfInterest_ = output; };
    }
    typingPause_.Action = [this] { AnnounceResult(); };
}

void NumberEntry::BindEvents() {
    for (TextField* field : {&EditFieldNbre, &EditFieldBaseOrg}) {
        const bool isDecimal = field == &EditFieldNbre;
        field->GotFocus = [this, field] { GotFocus(*field); };
        field->LostFocus = [this, field] { LostFocus(*field); };
        field->TextChange = [this, isDecimal](ChangedBy who) { TakeAsSource(isDecimal, who); };
        field->KeyDown = [this, field](const std::string& key) {
            calculation_.StopOnEscape(key);
            return RecallNumber(*field, key);
        };
    }
    for (PopupMenu* menu : {&PopupMenuBaseOrg, &PopupMenuBaseDest}) {
        menu->Change = [this] { ConvertAgain(); };
        menu->KeyDown = [this, menu](const std::string& key) { return PopupMenuBase_KeyDown(*menu, key); };
    }
    for (RadioButton& button : RadioButton09AZ) {
        button.Action = [this] { ConvertAgain(); };
    }
    timerTempo_.Action = [this] { TimerTempo_Action(); };
}

void NumberEntry::Begin() {
    drapTimerNbre_ = true;
    EditFieldNbre.SetFocus();
    focusNbre_ = true;
    focusBase_ = false;
}

bool& NumberEntry::IsBeingEdited(const TextField& champ) {
    return &champ == &EditFieldNbre ? focusNbre_ : focusBase_;
}

void NumberEntry::GotFocus(TextField& champ) {
    if (&champ == &EditFieldNbre) {
        numberField_.Forget();
    }
    if (!app_.initProg || IsBeingEdited(champ)) {
        return;
    }
    IsBeingEdited(champ) = true;
    app_.initProg = false;
    const std::string bare = WithoutBlanks(champ.Text());
    if (&champ == &EditFieldNbre ? IsNumeric(bare) : !IsErrorText(champ.Text())) {
        champ.Text = bare;
    }
    champ.SelStart = static_cast<int>(Len(champ.Text()));
    app_.initProg = true;
}

void NumberEntry::LostFocus(TextField& champ) {
    NoteNumber(champ);
    if (app_.initProg && IsBeingEdited(champ)) {
        IsBeingEdited(champ) = false;
        ShowFormatted(champ, CheckBoxFormatAuto.Value);
    }
}

void NumberEntry::ShowFormatted(TextField& champ, bool grouped) {
    if (&champ == &EditFieldNbre) {
        champ.Text = FormatNbre(champ.Text(), grouped);
    } else if (!IsErrorText(champ.Text())) {
        champ.Text = FormatType(SourceDigits(), BaseOrg(), grouped);
    }
}

void NumberEntry::Regroup(bool grouped) {
    if (!IsNumeric(EditFieldNbre.Text())) {
        return;
    }
    for (TextField* field : {&EditFieldNbre, &EditFieldBaseOrg}) {
        if (!IsBeingEdited(*field)) {
            ShowFormatted(*field, grouped);
        }
    }
    if (!IsErrorText(EditFieldBaseDest.Text())) {
        EditFieldBaseDest.Text = FormatType(EditFieldBaseDest.Text(), BaseDest(), grouped);
    }
}

// The second digit of a base belongs to the first if it comes soon and makes a base with it.
bool NumberEntry::PopupMenuBase_KeyDown(PopupMenu& menu, const std::string& key) {
    if (key.size() != 1 || !IsDigit(key[0])) {
        return false;
    }
    const int digit = key[0] - '0';
    const std::int64_t now = clock_.Milliseconds();
    const int both = now - digitTypedAt_ <= pauseInBase ? firstDigit_ * 10 + digit : digit;
    const bool isSecond = both != digit && both <= largestBase;
    firstDigit_ = isSecond ? 0 : digit;
    digitTypedAt_ = now;
    if (const int base = isSecond ? both : digit; base >= smallestBase) {
        menu.ListIndex = base - smallestBase;
    }
    return true;
}

// What the program writes is no input, whichever field has the focus.
void NumberEntry::TakeAsSource(bool isDecimal, ChangedBy who) {
    if (app_.initProg && who == ChangedBy::User) {
        drapTimerNbre_ = isDecimal;
        timerTempo_.Mode = TimerMode::Single;
        AnnounceResultAfterPause();
    }
}

void NumberEntry::TimerTempo_Action() {
    if (QuitIsUnderWay()) {
        recalculationDue_ = true; // for the case that the quit is refused
        return;
    }
    // A dialog counts too: a calculation that began under a file chooser would race the load behind it.
    const bool calculates = calculation_.CalculEnCours();
    if (calculates || app_.HasModalStep()) {
        timerTempo_.Mode = TimerMode::Single;
        if (calculates && ++turnsWaited_ * timerTempo_.Period >= waitToBeSeen &&
            !StaticTextEnAttente.Visible) {
            StaticTextEnAttente.Visible = true;
            fncts_.Announce(StaticTextEnAttente.Text);
        }
        return;
    }
    ChangeNbre();
}

void NumberEntry::PutOff() {
    recalculationDue_ = recalculationDue_ || timerTempo_.Mode != TimerMode::Off;
    timerTempo_.Mode = TimerMode::Off;
}

void NumberEntry::GoOn() {
    if (std::exchange(recalculationDue_, false)) {
        timerTempo_.Mode = TimerMode::Single;
    }
}

void NumberEntry::ChangeNbre() {
    turnsWaited_ = 0;
    StaticTextEnAttente.Visible = false;
    ConvNbreBaseD();
    const std::string decimal = WithoutBlanks(EditFieldNbre.Text());
    if (!decimal.empty() && !IsNumeric(decimal)) {
        return;
    }
    decomposition.DecompPremDeb(false);
    spelling.ConvNbreLettresD();
}

void NumberEntry::AnnounceResultAfterPause() {
    typingPause_.Mode = TimerMode::Single;
    typingPause_.Reset();
}

void NumberEntry::AnnounceResult() {
    const bool isToCome = timerTempo_.Mode != TimerMode::Off ||
                          (calculation_.CalculEnCours() && outputOfInterest_ == &TxtAreaDecomp1er);
    if (isToCome) {
        AnnounceResultAfterPause();
    } else {
        fncts_.Announce(outputOfInterest_->Text);
    }
}

// What the user may write in the base field. Keys are all taken, since the base may be chosen after the
// digits; a paste is taken whole or not at all.
bool NumberEntry::TakeBaseEdit(TextEdit& edit) {
    if (edit.inserted.empty()) {
        return true;
    }
    if (IsErrorText(edit.before)) {
        edit.start = 0;
        edit.removed = static_cast<int>(Len(edit.before));
    }
    const int base = BaseOrg();
    const std::string why = fncts_.Filled(Localisation::Txt_RefusBase(), {Str(base)});
    if (Len(edit.inserted) == 1 && OneLine(edit.inserted) == edit.inserted) {
        if (!AreDigits(BareDigits(edit.After(), base, Alphabet()), base, Alphabet())) {
            EditFieldBaseOrg.Notify(why); // the beep comes with the error that the other fields show
        }
        return true;
    }
    const auto digits = DigitsAsPasted(edit.inserted, base, Alphabet());
    if (!digits) {
        RefuseEdit(EditFieldBaseOrg, fncts_, why);
        return false;
    }
    edit.inserted = *digits;
    return true;
}

} // namespace tessarolyne

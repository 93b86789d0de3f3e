#include "app/Quitting.h"

#include "app/Settings.h"
#include "conversion/NumberEntry.h"
#include "platform/Controls.h"
#include "platform/Numbers.h"
#include "platform/Services.h"
#include "primes/Calculation.h"
#include "primes/PrimeFileBinding.h"
#include "primes/WinChargSauvNb1ers.h"
#include "primes/WinNbresPremiers.h"
#include "ui/FileItems.h"
#include "ui/Localisation.h"
#include "ui/Program.h"
#include "ui/WrittenNumber.h"

namespace tessarolyne {

namespace {

constexpr int quitPeriod = 10; // milliseconds

} // namespace

Quitting::Quitting(Window& mainWindow, Program& program, Settings& settings, Calculation& calculation,
    NumberEntry& entry, PrimeFileBinding& primeFile, const BevelButton& BevelButtonListe)
    : mainWindow_(mainWindow), program_(program), app_(program.app), fncts_(program.fncts),
      settings_(settings), calculation_(calculation), entry_(entry), primeFile_(primeFile),
      bevelButtonListe_(BevelButtonListe), timerQuit_(program.services.loop, quitPeriod) {
    timerQuit_.Action = [this] { TimerQuit_Action(); };
}

bool Quitting::IsUnderWay() const {
    return app_.DrapOkQuit || timerQuit_.Mode != TimerMode::Off;
}

bool Quitting::CancelClose(bool appQuitting) {
    if (app_.DrapOkQuit) {
        if (!appQuitting) {
            fncts_.ReportFault("The application should be quitting!");
        }
        return false;
    }
    if (appQuitting) {
        timerQuit_.Mode = TimerMode::Single; // turns the request into a close of this window
        return true;
    }
    if (calculation_.CalculEnCours()) {
        AskToStopCalculation();
        return true;
    }
    if (!fncts_.DrapMenu || questionIsUp_) {
        fncts_.Beep();
        return true;
    }
    bool enregistrer = false;
    if (app_.initProg && AskAboutNewPrimes(enregistrer)) {
        StayOpen();
    } else {
        DecideClose(enregistrer);
    }
    return true;
}

// A question about quitting. However often a quit is asked for, one of them is up at a time.
int Quitting::AskOnTheWayOut(const std::string& message, const std::string& explanation,
    const std::string& action, const std::string& cancel, const std::string& alternate, int icon) {
    fncts_.Beep();
    questionIsUp_ = true;
    const int answer = fncts_.MyDialogBox(message, explanation, action, cancel, alternate, icon, nullptr);
    questionIsUp_ = false;
    return answer;
}

// What a quit that is declined leaves: none under way, and a change of the number that it had put off is due.
void Quitting::StayOpen() {
    timerQuit_.Mode = TimerMode::Off;
    entry_.GoOn();
}

// On the answer that stops the calculation, TimerQuit waits for its end.
void Quitting::AskToStopCalculation() {
    if (questionIsUp_) {
        fncts_.Beep();
        return;
    }
    const int answer = AskOnTheWayOut(Localisation::Txt_CalculEnCours(), "", Localisation::Btn_StopEtQuit(),
        Localisation::Btn_NePasQuit(), "", 1);
    if (answer != 1) {
        StayOpen();
        return;
    }
    entry_.PutOff();
    calculation_.Stop();
    fncts_.PlayT(fncts_.Zoum, true);
    timerQuit_.Mode = TimerMode::Single;
}

// True if the user would rather not quit. No answer, because the program is being ended, decides nothing.
bool Quitting::AskAboutNewPrimes(bool& enregistrer) {
    const std::int32_t Nb1ersEnPlus = primeFile_.NewPrimes();
    if (Nb1ersEnPlus < 0) {
        fncts_.ReportFault("WinMain.Close, Nb1ersEnPlus = " + Str(Nb1ersEnPlus));
        return false;
    }
    if (Nb1ersEnPlus == 0 || !PasNil_Existe_Alias(app_.FichNbPrems, true)) {
        return false;
    }
    const std::string count = FormatWhole(static_cast<std::uint64_t>(Nb1ersEnPlus), true);
    const int answer = AskOnTheWayOut(fncts_.Filled(Localisation::Txt_IlYaNouvNbPrem(), {count}),
        primeFile_.PrimeFile.isForeign ? Localisation::Txt_CeciEffSonCont() : "", Localisation::Btn_Enreg(),
        Localisation::Btn_NePasEnreg(), Localisation::Btn_NePasQuit(), 0);
    enregistrer = answer == 1;
    return answer != 1 && answer != 2;
}

// All is answered: saves, and leaves the end itself to TimerQuit, so that all of this runs first.
void Quitting::DecideClose(bool enregistrer) {
    app_.DrapOkQuit = true;
    const bool listeVisible = bevelButtonListe_.Value;
    if (listeVisible) {
        program_.winNbresPremiers().Close();
    }
    if (app_.initProg) {
        settings_.PrefsSauver(listeVisible);
    }
    if (enregistrer) {
        program_.winChargSauvNb1ers().SaveNb1ers();
    }
    fncts_.DrapMenu = false;
    timerQuit_.Mode = TimerMode::Single;
}

void Quitting::TimerQuit_Action() {
    if (app_.DrapOkQuit) {
        app_.Quit(0);
    } else if (calculation_.CalculEnCours() || program_.HasWinChargSauvNb1ers()) {
        timerQuit_.Mode = TimerMode::Single;
        timerQuit_.Reset();
    } else {
        const bool found = fncts_.DrapMenu; // low under a modal window, which a quit goes through
        fncts_.DrapMenu = true;
        mainWindow_.Close();
        if (!app_.DrapOkQuit) {
            fncts_.RestoreDrapMenu(found || !app_.HasModalStep());
        }
    }
}

void Quitting::SaveWithoutAsking() {
    if (!startIsOver_ || app_.DrapOkQuit) {
        return; // nothing to save yet, or saved already
    }
    app_.DrapOkQuit = true;
    const bool listeVisible = bevelButtonListe_.Value;
    program_.services.loop.WaitUntil([this] { return !calculation_.IsOnThread(); });
    if (listeVisible) {
        program_.winNbresPremiers().KeepSettings();
    }
    settings_.PrefsSauver(listeVisible, true);
    if (!program_.HasWinChargSauvNb1ers()) {
        primeFile_.SaveQuietly();
    }
}

} // namespace tessarolyne

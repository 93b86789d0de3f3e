// The way out: a close can't finish at once, since a calculation may run and questions may have to be asked.

#include "app/Program.h"
#include "conversion/WinMain.h"
#include "platform/EventLoop.h"
#include "platform/MemoryLimits.h"
#include "platform/Numbers.h"
#include "platform/Services.h"
#include "primes/WinChargSauvNb1ers.h"
#include "primes/WinNbresPremiers.h"
#include "ui/FileItems.h"
#include "ui/Localisation.h"
#include "ui/NumberFormat.h"

#include <cstdint>
#include <exception>
#include <utility>

namespace tessarolyne {

namespace {

// How many primes the table holds beyond its file. Those with which every table begins are none beside a file
// that could not be read.
std::int32_t NewPrimes(const WinMain& main) {
    constexpr std::int64_t firstPrimes = 4;
    const std::int64_t known = main.PrimeFile.isForeign ? firstPrimes : std::int64_t{main.Nb_NbrePcharg};
    return static_cast<std::int32_t>(std::int64_t{main.Nbres_Premiers.UpperBound()} + 1 - known);
}

// Without a window, since nobody is there to see it or to read that it failed; the old file is whole then.
void SaveQuietly(const WinMain& main, const FolderItem& item, std::uint64_t memory) {
    try {
        PrimeFileProgress nobody;
        if (LookBeforeSaving(item, main.PrimeFile, main.Nbres_Premiers, memory, nobody) !=
            UnseenContent::None) {
            return;
        }
        const auto file = item.Files().CreateSafely(item.NativePath(), LinkPolicy::ReplaceTarget);
        WritePrimeFile(
            main.Nbres_Premiers, Localisation::Txt_NbreDeNbPrem(), main.NbreNbPparLigne, *file, nobody);
        file->Commit();
    } catch (const std::exception&) {
        return;
    }
}

} // namespace

bool WinMain::Event_CancelClose(bool appQuitting) {
    if (app.DrapOkQuit) {
        if (!appQuitting) {
            fncts.ReportFault("The application should be quitting!");
        }
        return false;
    }
    if (appQuitting) {
        TimerQuit.Mode = 1; // turns the request into a close of this window
        return true;
    }
    if (calculation.CalculEnCours()) {
        AskToStopCalculation();
        return true;
    }
    if (!fncts.DrapMenu || quitQuestionIsUp_) {
        fncts.Beep();
        return true;
    }
    bool enregistrer = false;
    if (app.initProg && AskAboutNewPrimes(enregistrer)) {
        StayOpen();
    } else {
        DecideClose(enregistrer);
    }
    return true;
}

// A question about quitting. However often a quit is asked for, one of them is up at a time.
int WinMain::AskOnTheWayOut(const std::string& message, const std::string& explanation,
    const std::string& action, const std::string& cancel, const std::string& alternate, int icon) {
    fncts.Beep();
    quitQuestionIsUp_ = true;
    const int answer = fncts.MyDialogBox(message, explanation, action, cancel, alternate, icon, nullptr);
    quitQuestionIsUp_ = false;
    return answer;
}

// What a quit that is declined leaves: none under way, and a change of the number that it had put off is due.
void WinMain::StayOpen() {
    TimerQuit.Mode = 0;
    if (std::exchange(recalculationDue_, false)) {
        TimerTempo.Mode = 1;
    }
}

// On the answer that stops the calculation, TimerQuit waits for its end.
void WinMain::AskToStopCalculation() {
    if (quitQuestionIsUp_) {
        fncts.Beep();
        return;
    }
    const int answer = AskOnTheWayOut(Localisation::Txt_CalculEnCours(), "", Localisation::Btn_StopEtQuit(),
        Localisation::Btn_NePasQuit(), "", 1);
    if (answer != 1) {
        StayOpen();
        return;
    }
    recalculationDue_ = recalculationDue_ || TimerTempo.Mode != 0;
    TimerTempo.Mode = 0;
    calculation.Stop();
    fncts.PlayT(fncts.Zoum, true);
    TimerQuit.Mode = 1;
}

// True if the user would rather not quit. No answer, because the program is being ended, decides nothing.
bool WinMain::AskAboutNewPrimes(bool& enregistrer) {
    const std::int32_t Nb1ersEnPlus = NewPrimes(*this);
    if (Nb1ersEnPlus < 0) {
        fncts.ReportFault("WinMain.Close, Nb1ersEnPlus = " + Str(Nb1ersEnPlus));
        return false;
    }
    if (Nb1ersEnPlus == 0 || !PasNil_Existe_Alias(app.FichNbPrems, true)) {
        return false;
    }
    const std::string question = Localisation::Txt_IlYaNouvNbPrem();
    const std::string count = FormatWhole(static_cast<std::uint64_t>(Nb1ersEnPlus), true);
    const int answer = AskOnTheWayOut(fncts.FracTexte(question, 1) + count + fncts.FracTexte(question, 2),
        PrimeFile.isForeign ? Localisation::Txt_CeciEffSonCont() : "", Localisation::Btn_Enreg(),
        Localisation::Btn_NePasEnreg(), Localisation::Btn_NePasQuit(), 0);
    enregistrer = answer == 1;
    return answer != 1 && answer != 2;
}

// All is answered: saves, and leaves the end itself to TimerQuit, so that all of this runs first.
void WinMain::DecideClose(bool enregistrer) {
    app.DrapOkQuit = true;
    const bool listeVisible = BevelButtonListe.Value;
    if (listeVisible) {
        program.winNbresPremiers().Close();
    }
    if (app.initProg) {
        app.PrefsSauver(listeVisible);
    }
    if (enregistrer) {
        program.winChargSauvNb1ers().SaveNb1ers();
    }
    fncts.DrapMenu = false;
    TimerQuit.Mode = 1;
}

void WinMain::TimerQuit_Action(Timer& timer) {
    if (app.DrapOkQuit) {
        app.Quit(0);
    } else if (calculation.CalculEnCours() || program.HasWinChargSauvNb1ers()) {
        timer.Mode = 1;
        timer.Reset();
    } else {
        const bool found = fncts.DrapMenu; // low under a modal window, which a quit goes through
        fncts.DrapMenu = true;
        Close();
        if (!app.DrapOkQuit) {
            fncts.RestoreDrapMenu(found || !app.HasModalStep());
        }
    }
}

void WinMain::SaveWithoutAsking() {
    if (!startIsOver_ || app.DrapOkQuit) {
        return; // nothing to save yet, or saved already
    }
    app.DrapOkQuit = true;
    const bool listeVisible = BevelButtonListe.Value;
    program.services.loop.WaitUntil([this] { return !calculation.IsOnThread(); });
    if (listeVisible) {
        program.winNbresPremiers().KeepSettings();
    }
    app.SavePreferencesQuietly(listeVisible);
    // A table that never agreed with the file says nothing of what the file holds.
    if (Nb_NbrePcharg > 0 && !PrimeFile.isForeign && NewPrimes(*this) > 0 &&
        PasNil_Existe_Alias(app.FichNbPrems, true) && !program.HasWinChargSauvNb1ers()) {
        SaveQuietly(*this, *app.FichNbPrems, program.services.memory.AvailableBytes() / 2);
    }
}

} // namespace tessarolyne

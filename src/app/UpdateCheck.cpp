#include "app/UpdateCheck.h"

#include "app/VersionFile.h"
#include "platform/Numbers.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"
#include "ui/Program.h"
#include "ui/SafeAddress.h"
#include "ui/Version.h"

namespace tessarolyne {

namespace {

// In milliseconds.
constexpr int handOverPeriod = 1;
constexpr int busyPeriod = 1000;
constexpr int moment = 500; // what takes longer is shown to be under way

// An address that will only be shown is no help to someone who wonders where the button leads.
std::string HelpTag(const std::string& address) {
    return IsSafeAddress(address) ? address : std::string();
}

} // namespace

UpdateCheck::UpdateCheck(App& app, Fncts& fncts, Services& services, std::string versionFile)
    : app_(app), fncts_(fncts), services_(services), versionFile_(std::move(versionFile)),
      slowCheck_(services.loop, moment), timerVerMaJ_(services.loop, handOverPeriod) {
    timerVerMaJ_.Action = [this] { TimerVerMaJ_Action(); };
    slowCheck_.Action = [this] { TakesTime(true); };
}

// A clock that was set back makes no new day.
void UpdateCheck::StartAutomatically() {
    const bool due = offersUpdateCheck && app_.AutoCheckUpdt &&
                     app_.DateDuJour.CalendarDay() > app_.DateDerLaunch.CalendarDay() &&
                     !services_.loop.IsQuitting();
    alertVerAjour_ = !due;
    if (due) {
        Fetch();
    }
}

void UpdateCheck::Start() {
    Fetch();
    slowCheck_.Mode = TimerMode::Single;
}

void UpdateCheck::Fetch() {
    ++fetchesUnderWay_;
    services_.http.Get(versionFile_, [this](const HttpReply& reply) { HasCome(reply); });
}

void UpdateCheck::HasCome(const HttpReply& reply) {
    reply_ = reply;
    timerVerMaJ_.Mode = TimerMode::Single;
    if (--fetchesUnderWay_ == 0) {
        slowCheck_.Mode = TimerMode::Off;
        TakesTime(false);
    }
}

void UpdateCheck::TimerVerMaJ_Action() {
    const bool isBusy = VrfVerMaJ();
    timerVerMaJ_.Period = isBusy ? busyPeriod : handOverPeriod;
    // Off even if a second reply came while the dialog was up: it has been dealt with.
    timerVerMaJ_.Mode = isBusy ? TimerMode::Single : TimerMode::Off;
}

// Tells the user the outcome. True: the program is busy, nothing was done. Any version but this one
// counts as new, also an older one: there is no order among them.
bool UpdateCheck::VrfVerMaJ() {
    if (!fncts_.DrapMenu || app_.HasModalStep()) {
        return true;
    }
    fncts_.DrapMenu = false;
    // Whatever the status: an error page isn't read as a version file.
    const auto file = ReadVersionFile(versionFile_ + "\r" + reply_.content);
    const std::string history = HistoryPage(versionFile_);
    const bool tellAll = std::exchange(alertVerAjour_, true);
    const std::string ok = Localisation::Btn_Ok();
    int answer = 0; // 1 the download page, 3 the history
    if (!file) {
        if (tellAll) {
            fncts_.Beep();
            fncts_.MyDialogBox(Localisation::Txt_Ver_MaJ_impo(),
                reply_.errorCode != 0 ? "Server Error " + Str(reply_.errorCode) : "", ok, "", "", 1, nullptr);
        }
    } else if (file->version != "v." + app_.ShortVersion) {
        if (!tellAll) {
            fncts_.Beep();
        }
        answer = fncts_.MyDialogBox(Localisation::Txt_Ver_Nouv(),
            file->version + std::string(endOfLine) + file->notes, Localisation::Btn_SiteWeb(),
            Localisation::Btn_Fermer(), Localisation::Btn_Historic(), 0, nullptr,
            {HelpTag(file->downloadPage), "", HelpTag(history)});
    } else if (tellAll) {
        answer = fncts_.MyDialogBox(Localisation::Txt_Ver_a_jour(), file->version, ok,
            Localisation::Btn_Historic(), "", 0, nullptr, {"", HelpTag(history), ""});
        answer += answer == 0 ? 0 : 1; // no answer, because the program is being ended, opens nothing
    }
    if (answer == 1 || answer == 3) {
        fncts_.ShowURL(answer == 1 ? file->downloadPage : history);
    }
    fncts_.RestoreDrapMenu(true);
    return false;
}

} // namespace tessarolyne

// The look for a new version: the fetch, and the hand-over from the socket's event to the main event loop, so
// that no dialog ever opens inside the former. What is said to the user is said by Fncts.VrfVerMaJ.

#include "app/Program.h"
#include "app/Version.h"
#include "conversion/WinMain.h"
#include "platform/EventLoop.h"
#include "platform/Numbers.h"
#include "platform/Services.h"
#include "ui/Localisation.h"

#include <algorithm>

namespace tessarolyne {

namespace {

constexpr int busyPeriod = 1000;

// Days of the user's calendar, not spans of 24 hours.
std::int64_t DayNumber(const Date& date) {
    constexpr std::int64_t secondsADay = 86400;
    return date.TotalSeconds() / secondsADay;
}

} // namespace

void WinMain::BindUpdateCheck() {
    SocketVerMaJ.PageReceived = [this](const std::string& url, int httpStatus, const std::string& headers,
                                    const std::string& content) {
        SocketVerMaJ_PageReceived(SocketVerMaJ, url, httpStatus, headers, content);
    };
    SocketVerMaJ.Error = [this](int code) { SocketVerMaJ_Error(SocketVerMaJ, code); };
    TimerVerMaJ.Action = [this] { TimerVerMaJ_Action(TimerVerMaJ); };
    slowCheck_.Action = [this] { TurnWheel(checkTakesTime_, true); };
}

// A clock that was set back makes no new day.
void WinMain::StartAutomaticCheck() {
    const bool due = offersUpdateCheck && app.AutoCheckUpdt &&
                     DayNumber(app.DateDuJour) > DayNumber(app.DateDerLaunch) &&
                     !program.services.loop.IsQuitting();
    fncts.AlertVerAjour = !due;
    if (due) {
        FetchVersionFile();
    }
}

bool WinMain::AppleVMaJ_Action() {
    if (MenuItemIsEnabled("AppleVMaJ")) {
        FetchVersionFile();
        slowCheck_.Mode = 1;
    }
    return true;
}

void WinMain::FetchVersionFile() {
    ++fetchesUnderWay_;
    SocketVerMaJ.Get(program.versionFile);
}

void WinMain::VersionFileHasCome() {
    TimerVerMaJ.Mode = 1;
    fetchesUnderWay_ = std::max(0, fetchesUnderWay_ - 1);
    if (fetchesUnderWay_ == 0) {
        slowCheck_.Mode = 0;
        TurnWheel(checkTakesTime_, false);
    }
}

// Whatever the status: an error page fails the reader's tests.
void WinMain::SocketVerMaJ_PageReceived(
    HTTPSocket&, const std::string& url, int, const std::string&, const std::string& content) {
    fncts.TexteVerMaJ = url + "\r" + content;
    VersionFileHasCome();
}

void WinMain::SocketVerMaJ_Error(HTTPSocket&, int code) {
    fncts.TexteVerMaJ = Str(code);
    VersionFileHasCome();
}

void WinMain::TimerVerMaJ_Action(Timer& sender) {
    const bool busy = fncts.VrfVerMaJ(app.ShortVersion, Localisation::Txt_Ver_a_jour(),
        Localisation::Txt_Ver_Nouv(), Localisation::Txt_Ver_MaJ_impo(), Localisation::Btn_Ok(),
        Localisation::Btn_Historic(), Localisation::Btn_SiteWeb(), Localisation::Btn_Fermer());
    if (busy) {
        sender.Period = busyPeriod;
        sender.Mode = 1;
        sender.Reset();
    } else {
        sender.Period = handOverPeriod;
        sender.Mode = 0; // also where a second reply came under the dialog: it is dealt with
    }
}

} // namespace tessarolyne

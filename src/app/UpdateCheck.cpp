#include "app/UpdateCheck.h"

#include "app/Version.h"
#include "app/VersionFile.h"
#include "platform/Numbers.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"
#include "ui/Program.h"
#include "ui/SafeAddress.h"

#include <algorithm>

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
      slowCheck_(services.loop, moment), timerVerMaJ_(services.loop, handOverPeriod),
      socketVerMaJ_(services.http) {
    // Whatever the status: an error page fails the reader's tests.
    socketVerMaJ_.PageReceived = [this](const std::string& url, int, const std::string&,
                                     const std::string& content) { HasCome(url + "\r" + content); };
    socketVerMaJ_.Error = [this](int code) { HasCome(Str(code)); };
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
    slowCheck_.Mode = 1;
}

void UpdateCheck::Fetch() {
    ++fetchesUnderWay_;
    socketVerMaJ_.Get(versionFile_);
}

void UpdateCheck::HasCome(std::string text) {
    texteVerMaJ_ = std::move(text);
    timerVerMaJ_.Mode = 1;
    fetchesUnderWay_ = std::max(0, fetchesUnderWay_ - 1);
    if (fetchesUnderWay_ == 0) {
        slowCheck_.Mode = 0;
        TakesTime(false);
    }
}

void UpdateCheck::TimerVerMaJ_Action() {
    if (VrfVerMaJ()) {
        timerVerMaJ_.Period = busyPeriod;
        timerVerMaJ_.Mode = 1;
        timerVerMaJ_.Reset();
    } else {
        timerVerMaJ_.Period = handOverPeriod;
        timerVerMaJ_.Mode = 0; // also where a second reply came under the dialog: it is dealt with
    }
}

// Tells the user what is to be told. True: the program is busy, nothing was done. Any version but this one
// counts as new, also an older one: there is no order among them.
bool UpdateCheck::VrfVerMaJ() {
    if (!fncts_.DrapMenu || app_.HasModalStep()) {
        return true;
    }
    fncts_.DrapMenu = false;
    const VersionReply reply = ReadVersionReply(texteVerMaJ_);
    const std::string history = HistoryPage(reply.requestedUrl);
    const bool tellAll = std::exchange(alertVerAjour_, true);
    const std::string ok = Localisation::Btn_Ok();
    int answer = 0; // 1 the download page, 3 the history
    if (reply.kind != VersionReply::Kind::VersionFile) {
        if (tellAll) {
            const bool hasCode = reply.kind == VersionReply::Kind::ErrorCode;
            fncts_.Beep();
            fncts_.MyDialogBox(Localisation::Txt_Ver_MaJ_impo(),
                hasCode ? "Server Error " + reply.errorCode : "", ok, "", "", 1, nullptr);
        }
    } else if (reply.version != "v." + app_.ShortVersion) {
        if (!tellAll) {
            fncts_.Beep();
        }
        answer = fncts_.MyDialogBox(Localisation::Txt_Ver_Nouv(),
            reply.version + std::string(endOfLine) + reply.notes, Localisation::Btn_SiteWeb(),
            Localisation::Btn_Fermer(), Localisation::Btn_Historic(), 0, nullptr,
            {HelpTag(reply.downloadPage), "", HelpTag(history)});
    } else if (tellAll) {
        answer = fncts_.MyDialogBox(Localisation::Txt_Ver_a_jour(), reply.version, ok,
            Localisation::Btn_Historic(), "", 0, nullptr, {"", HelpTag(history), ""});
        answer += answer == 0 ? 0 : 1; // no answer, because the program is being ended, opens nothing
    }
    if (answer == 1 || answer == 3) {
        fncts_.ShowURL(answer == 1 ? reply.downloadPage : history);
    }
    texteVerMaJ_.clear();
    fncts_.RestoreDrapMenu(true);
    return false;
}

} // namespace tessarolyne

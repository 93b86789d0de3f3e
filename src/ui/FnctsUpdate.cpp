#include "ui/Fncts.h"

#include "app/Program.h"
#include "app/SafeAddress.h"
#include "app/VersionFile.h"
#include "platform/Text.h"

#include <utility>

namespace tessarolyne {

namespace {

// An address that will only be shown is no help to who wonders where the button leads.
std::string HelpTag(const std::string& address) {
    return IsSafeAddress(address) ? address : std::string();
}

} // namespace

// Any version but this one counts as new, also an older one: there is no order among them.
bool Fncts::VrfVerMaJ(const std::string& shortVersion, const std::string& txtAJour,
    const std::string& txtNouv, const std::string& txtImpo, const std::string& btnOk,
    const std::string& btnHistoric, const std::string& btnSiteWeb, const std::string& btnFermer) {
    if (!DrapMenu || program_.app.HasModalStep()) {
        return true;
    }
    DrapMenu = false;
    const VersionReply reply = ReadVersionReply(TexteVerMaJ);
    const std::string history = HistoryPage(reply.requestedUrl);
    const bool tellAll = std::exchange(AlertVerAjour, true);
    int answer = 0; // 1 the download page, 3 the history
    if (reply.kind != VersionReply::Kind::VersionFile) {
        if (tellAll) {
            const bool hasCode = reply.kind == VersionReply::Kind::ErrorCode;
            Beep();
            MyDialogBox(txtImpo, hasCode ? "Server Error " + reply.errorCode : "", btnOk, "", "", 1, nullptr);
        }
    } else if (reply.version != "v." + shortVersion) {
        if (!tellAll) {
            Beep();
        }
        answer = MyDialogBox(txtNouv, reply.version + std::string(endOfLine) + reply.notes, btnSiteWeb,
            btnFermer, btnHistoric, 0, nullptr, {HelpTag(reply.downloadPage), "", HelpTag(history)});
    } else if (tellAll) {
        answer = MyDialogBox(
            txtAJour, reply.version, btnOk, btnHistoric, "", 0, nullptr, {"", HelpTag(history), ""});
        answer += answer == 0 ? 0 : 1; // no answer, because the program is being ended, opens nothing
    }
    if (answer == 1 || answer == 3) {
        ShowURL(answer == 1 ? reply.downloadPage : history);
    }
    TexteVerMaJ.clear();
    RestoreDrapMenu(true);
    return false;
}

} // namespace tessarolyne

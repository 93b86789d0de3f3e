// What the program says by itself at the start, before the user may do anything.

#include "app/App.h"
#include "app/Version.h"
#include "conversion/WinMain.h"
#include "platform/EventLoop.h"
#include "platform/Services.h"
#include "ui/Localisation.h"
#include "ui/WinInfos.h"

namespace tessarolyne {

void WinMain::Welcome(bool premierLancement) {
    if (premierLancement) {
        fncts.MyDialogBox(
            Localisation::Txt_SiVsVoulezConservNbPrem(), "", Localisation::Btn_Ok(), "", "", 0, nullptr);
    } else if (app.DejaDonne || !asksForDonations) {
        return;
    }
    if (program.services.loop.IsQuitting()) {
        return;
    }
    WinInfos& about = program.winInfos();
    if (!premierLancement) {
        about.AskForDonation();
    }
    about.ShowModal();
}

} // namespace tessarolyne

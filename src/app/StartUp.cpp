// Everything from the making of the main window until the event loop is idle.

#include "app/PreferencesFile.h"
#include "conversion/WinMain.h"
#include "platform/EventLoop.h"
#include "platform/Numbers.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "primes/WinChargSauvNb1ers.h"
#include "primes/WinNbresPremiers.h"
#include "ui/FileItems.h"
#include "ui/Localisation.h"
#include "ui/Program.h"
#include "ui/Version.h"
#include "ui/WinInfos.h"

#include <set>

namespace tessarolyne {

namespace {

constexpr int smallestBase = 2;
constexpr int largestBase = 36;

constexpr const char* ownPreferencesFolder = "TessarolynePrefs";

} // namespace

// App.initProg is false until near the end, so that no handler starts a calculation before.
void WinMain::Event_Open() {
    LabBlockUI.Open();
    Fncts::DecPosCtrl(*this);
    app.DrapOkQuit = false;
    app.DateDuJour = program.services.clock.Now();
    StaticTextEnBase10.Text = Localisation::Txt_EnBase() + "10";
    for (PopupMenu* menu : {&PopupMenuBaseOrg, &PopupMenuBaseDest}) {
        menu->DeleteAllRows();
        for (int base = smallestBase; base <= largestBase; ++base) {
            menu->AddRow(Localisation::Txt_EnBase() + Str(base));
        }
    }
    if (!FindPreferencesFolder()) {
        return;
    }
    const bool premierLancement = settings.PrefsCharger();
    SweepLeftovers();
    Refresh();
    Show();
    {
        const QuietShowing quiet(app);
        program.winChargSauvNb1ers().LoadNb1ers();
    }
    if (CloseIsDue() || app.QuitAsked) {
        app.Quit(0); // the user has closed the program in the middle of it
        return;
    }
    Welcome(premierLancement);
    if (program.services.loop.IsQuitting()) {
        return; // a signal ended the dialogs: there is nothing to save, and no window to open
    }
    const QuietShowing quiet(app); // the list may come back, but the amount is typed here
    fncts.DrapMenu = true;
    EnableMenuBoutons();
    app.initProg = true;
    quitting.StartIsOver();
    if (BevelButtonListe.Value) {
        program.winNbresPremiers().Show();
    }
    // The window's own focus, also where the list window is in front: so LostFocus always comes.
    entry.Begin();
    updateCheck.StartAutomatically();
}

// What saves of killed runs left beside the two files, either of which may be a link to another folder.
void WinMain::SweepLeftovers() {
    std::set<std::string> folders{app.DossierPref->NativePath()};
    for (const auto& file : {app.DossierPref->Child(preferencesFileName), GetTargetItem_f(app.FichNbPrems)}) {
        if (const auto folder = file ? file->Parent() : std::nullopt) {
            folders.insert(folder->NativePath());
        }
    }
    for (const std::string& folder : folders) {
        program.services.files.SweepLeftovers(folder);
    }
}

// False, and the program on its way out with nothing saved, if there is no place for preferences.
bool WinMain::FindPreferencesFolder() {
    FileSystem& files = program.services.files;
    app.DossierPref = FolderItem::Find(files, KnownFolder::Preferences);
    if (!app.DossierPref) {
        if (const auto folder = FolderItem::Find(files, KnownFolder::Application)) {
            app.DossierPref = folder->Child(ownPreferencesFolder);
            if (app.DossierPref && !app.DossierPref->Exists()) {
                app.DossierPref->CreateAsFolder();
            }
        }
    }
    if (app.DossierPref && app.DossierPref->Exists()) {
        return true;
    }
    fncts.Beep();
    fncts.ReportFaultInLines(std::string(endOfLine) + "Impossible to create the Preferences folder.");
    fncts.DrapMenu = true;
    Close();
    return false;
}

// What the program says by itself, before the user may do anything.
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

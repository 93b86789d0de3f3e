#include "ui/Program.h"

#include "app/PreferencesFile.h"
#include "conversion/WinMain.h"
#include "platform/FolderItem.h"
#include "platform/Services.h"
#include "ui/FileItems.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"
#include "ui/Version.h"

#include <algorithm>

namespace tessarolyne {

namespace {

constexpr int defaultLeft = 20;
constexpr int defaultTop = 60;
constexpr int failureBeeps = 3;

} // namespace

App::App(Program& program, Services& services)
    : Application(services), ShortVersion(shortVersion), program_(program) {}

void App::Event_Open() {
    program_.fncts.DefAppEncod = "UTF-8";
}

// What goes from the file into a property or control at the start, and back at the end, as it is.
template <class Copy>
void App::CopySettings(Preferences& preferences, const Copy& copy) {
    WinMain& window = program_.winMain();
    copy(preferences.dejaDonne, DejaDonne);
    copy(preferences.autoCheckUpdt, AutoCheckUpdt);
    copy(preferences.annonces, program_.fncts.Annonces);
    copy(preferences.winNBP, WinNBP);
    copy(preferences.majuscule, window.CheckBoxMajusc.Value);
    copy(preferences.nbreNbPparLigne, window.primeFile.NbreNbPparLigne);
    copy(preferences.baseOrg, window.PopupMenuBaseOrg.ListIndex);
    copy(preferences.baseDest, window.PopupMenuBaseDest.ListIndex);
    copy(preferences.formatAuto, window.CheckBoxFormatAuto.Value);
    copy(preferences.trUnion, window.CheckBoxTrUnion.Value);
    copy(preferences.monnaie, window.EditFieldMonnaie.Text);
    copy(preferences.centime, window.EditFieldCentime.Text);
    copy(preferences.monnaies, window.EditFieldMonnaies.Text);
    copy(preferences.centimes, window.EditFieldCentimes.Text);
}

bool App::PrefsCharger() {
    Preferences preferences;
    preferences.dateLaunch = DateDuJour;
    preferences.langue = Localisation::A_LangLoc();
    preferences.monnaie = Localisation::Txt_Monnaie();
    preferences.centime = Localisation::Txt_Centime();
    preferences.monnaies = Localisation::Txt_Monnaies();
    preferences.centimes = Localisation::Txt_Centimes();
    const PreferencesOutcome outcome = ReadPreferencesFile(*DossierPref, preferences);
    Apply(preferences);
    if (outcome == PreferencesOutcome::Failed) {
        prefsReadingFailed_ = true;
        program_.fncts.BeepNbT(failureBeeps);
        program_.fncts.ReportFault("PrefsCharger, problem while reading file!");
        return true;
    }
    PlaceMainWindow(preferences.winMain[0], preferences.winMain[1]);
    ChooseLanguage(preferences.langue);
    return outcome == PreferencesOutcome::Missing;
}

// All but the window's place and the language, which a file whose reading failed doesn't decide.
void App::Apply(Preferences& preferences) {
    WinMain& window = program_.winMain();
    CopySettings(preferences, [](const auto& setting, auto& place) { place = setting; });
    DateDerLaunch = preferences.dateLaunch;
    FichNbPrems = GetFitemAbsPath(GetServices().files, preferences.fichNbPrems, false);
    boundAtStart_ = FichNbPrems;
    boundAtStartText_ = preferences.fichNbPrems;
    window.BevelButtonListe.Value = preferences.listeVisible;
    window.RadioButton09AZ[static_cast<std::size_t>(preferences.radio09AZ)].Value = true;
}

// A window that would not be whole on a screen comes to the default place.
void App::PlaceMainWindow(int left, int top) {
    WinMain& window = program_.winMain();
    if (!window.CanStandAt({left, top, window.Width, window.Height})) {
        left = defaultLeft;
        top = defaultTop;
    }
    window.Left = left;
    window.Top = top;
}

void App::ChooseLanguage(const std::string& code) {
    PopupMenu& menu = program_.winMain().PopupMenuLg;
    const auto& codes = menu.Rows();
    const auto row = std::find(codes.begin(), codes.end(), code);
    if (row == codes.end()) {
        program_.fncts.ReportFault("PrefsCharger, LangNbreLettr = '" + code + "'");
        return;
    }
    menu.ListIndex = static_cast<int>(row - codes.begin());
}

Preferences App::Gather(bool listeVisible) {
    const WinMain& window = program_.winMain();
    Preferences preferences;
    CopySettings(preferences, [](auto& setting, const auto& place) { setting = place; });
    preferences.dateLaunch = DateDuJour;
    preferences.winMain = {window.Left, window.Top, window.Width, window.Height};
    preferences.listeVisible = listeVisible;
    preferences.fichNbPrems =
        PasNil_Existe_Alias(FichNbPrems, false) ? AbsPath_f(*FichNbPrems, true) : std::string();
    preferences.radio09AZ = window.RadioButton09AZ[0].Value()   ? 0
                            : window.RadioButton09AZ[1].Value() ? 1
                                                                : -1;
    preferences.langue = window.PopupMenuLg.Text();
    return preferences;
}

// A prime file that another instance of the program was bound to meanwhile stays, unless the user has bound
// this one anew, too.
void App::KeepOthersBinding(Preferences& preferences) const {
    Preferences now;
    if (FichNbPrems == boundAtStart_ && ReadPreferencesFile(*DossierPref, now) == PreferencesOutcome::Read &&
        now.fichNbPrems != boundAtStartText_) {
        preferences.fichNbPrems = now.fichNbPrems;
    }
}

// A write that fails leaves the old file.
void App::PrefsSauver(bool listeVisible, bool quietly) {
    if (!PasNil_Existe_Alias(DossierPref, true)) {
        return;
    }
    Preferences preferences = Gather(listeVisible);
    KeepOthersBinding(preferences);
    try {
        WritePreferencesFile(*DossierPref, preferences, prefsReadingFailed_);
    } catch (const IOException&) {
        if (!quietly) {
            program_.fncts.BeepNbT(failureBeeps);
            program_.fncts.ReportFault("PrefsSauver, problem while writing file!");
        }
    }
}

} // namespace tessarolyne

#include "app/Settings.h"

#include "app/PreferencesFile.h"
#include "conversion/WinMain.h"
#include "platform/FolderItem.h"
#include "platform/Services.h"
#include "ui/FileItems.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"
#include "ui/Program.h"

#include <algorithm>

namespace tessarolyne {

namespace {

constexpr int defaultLeft = 20;
constexpr int defaultTop = 60;
constexpr int failureBeeps = 3;

} // namespace

Settings::Settings(WinMain& window, App& app, Fncts& fncts) : window_(window), app_(app), fncts_(fncts) {}

// What goes from the file into a property or control at the start, and back at the end, as it is.
template <class Copy>
void Settings::CopySettings(Preferences& preferences, const Copy& copy) {
    copy(preferences.dejaDonne, app_.DejaDonne);
    copy(preferences.autoCheckUpdt, app_.AutoCheckUpdt);
    copy(preferences.annonces, fncts_.Annonces);
    copy(preferences.winNBP, app_.WinNBP);
    copy(preferences.majuscule, window_.CheckBoxMajusc.Value);
    copy(preferences.nbreNbPparLigne, window_.primeFile.NbreNbPparLigne);
    copy(preferences.baseOrg, window_.PopupMenuBaseOrg.ListIndex);
    copy(preferences.baseDest, window_.PopupMenuBaseDest.ListIndex);
    copy(preferences.formatAuto, window_.CheckBoxFormatAuto.Value);
    copy(preferences.trUnion, window_.CheckBoxTrUnion.Value);
    copy(preferences.monnaie, window_.EditFieldMonnaie.Text);
    copy(preferences.centime, window_.EditFieldCentime.Text);
    copy(preferences.monnaies, window_.EditFieldMonnaies.Text);
    copy(preferences.centimes, window_.EditFieldCentimes.Text);
}

bool Settings::PrefsCharger() {
    Preferences preferences;
    preferences.dateLaunch = app_.DateDuJour;
    preferences.langue = Localisation::A_LangLoc();
    preferences.monnaie = Localisation::Txt_Monnaie();
    preferences.centime = Localisation::Txt_Centime();
    preferences.monnaies = Localisation::Txt_Monnaies();
    preferences.centimes = Localisation::Txt_Centimes();
    const PreferencesOutcome outcome = ReadPreferencesFile(*app_.DossierPref, preferences);
    Apply(preferences);
    if (outcome == PreferencesOutcome::Failed) {
        prefsReadingFailed_ = true;
        fncts_.BeepNbT(failureBeeps);
        fncts_.ReportFault("PrefsCharger, problem while reading file!");
        return true;
    }
    PlaceMainWindow(preferences.winMain[0], preferences.winMain[1]);
    ChooseLanguage(preferences.langue);
    return outcome == PreferencesOutcome::Missing;
}

// All but the window's place and the language, which a file whose reading failed doesn't decide.
void Settings::Apply(Preferences& preferences) {
    CopySettings(preferences, [](const auto& setting, auto& place) { place = setting; });
    app_.DateDerLaunch = preferences.dateLaunch;
    app_.FichNbPrems = GetFitemAbsPath(app_.GetServices().files, preferences.fichNbPrems, false);
    boundAtStart_ = app_.FichNbPrems;
    boundAtStartText_ = preferences.fichNbPrems;
    window_.BevelButtonListe.Value = preferences.listeVisible;
    window_.RadioButton09AZ[static_cast<std::size_t>(preferences.radio09AZ)].Value = true;
}

// A window that would not be whole on a screen goes to the default place.
void Settings::PlaceMainWindow(int left, int top) {
    if (!window_.CanStandAt({left, top, window_.Width, window_.Height})) {
        left = defaultLeft;
        top = defaultTop;
    }
    window_.Left = left;
    window_.Top = top;
}

void Settings::ChooseLanguage(const std::string& code) {
    PopupMenu& menu = window_.PopupMenuLg;
    const auto& codes = menu.Rows();
    const auto row = std::find(codes.begin(), codes.end(), code);
    if (row == codes.end()) {
        fncts_.ReportFault("PrefsCharger, LangNbreLettr = '" + code + "'");
        return;
    }
    menu.ListIndex = static_cast<int>(row - codes.begin());
}

Preferences Settings::Gather(bool listeVisible) {
    Preferences preferences;
    CopySettings(preferences, [](auto& setting, const auto& place) { setting = place; });
    preferences.dateLaunch = app_.DateDuJour;
    preferences.winMain = {window_.Left, window_.Top, window_.Width, window_.Height};
    preferences.listeVisible = listeVisible;
    preferences.fichNbPrems =
        PasNil_Existe_Alias(app_.FichNbPrems, false) ? AbsPath_f(*app_.FichNbPrems, true) : std::string();
    preferences.radio09AZ = window_.RadioButton09AZ[0].Value()   ? 0
                            : window_.RadioButton09AZ[1].Value() ? 1
                                                                 : -1;
    preferences.langue = window_.PopupMenuLg.Text();
    return preferences;
}

// A prime file that another instance of the program was bound to meanwhile stays, unless the user has bound
// this one anew, too.
void Settings::KeepOthersBinding(Preferences& preferences) const {
    Preferences now;
    if (app_.FichNbPrems == boundAtStart_ &&
        ReadPreferencesFile(*app_.DossierPref, now) == PreferencesOutcome::Read &&
        now.fichNbPrems != boundAtStartText_) {
        preferences.fichNbPrems = now.fichNbPrems;
    }
}

// A write that fails leaves the old file.
void Settings::PrefsSauver(bool listeVisible, bool quietly) {
    if (!PasNil_Existe_Alias(app_.DossierPref, true)) {
        return;
    }
    Preferences preferences = Gather(listeVisible);
    KeepOthersBinding(preferences);
    try {
        WritePreferencesFile(*app_.DossierPref, preferences, prefsReadingFailed_);
    } catch (const IOException&) {
        if (!quietly) {
            fncts_.BeepNbT(failureBeeps);
            fncts_.ReportFault("PrefsSauver, problem while writing file!");
        }
    }
}

} // namespace tessarolyne

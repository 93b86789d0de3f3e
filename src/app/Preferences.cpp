// The settings between two runs: from the preferences file into the properties and controls, and back.

#include "app/PreferencesFile.h"
#include "conversion/WinMain.h"
#include "platform/FileSystem.h"
#include "platform/Services.h"
#include "platform/Stage.h"
#include "ui/App.h"
#include "ui/FileItems.h"
#include "ui/Fncts.h"
#include "ui/Localisation.h"

#include <algorithm>

namespace tessarolyne {

namespace {

constexpr int defaultLeft = 20;
constexpr int defaultTop = 60;
constexpr int failureBeeps = 3;

} // namespace

bool App::PrefsCharger() {
    Preferences preferences;
    preferences.dateLaunch = DateDuJour;
    preferences.langue = Localisation::A_LangLoc();
    preferences.monnaie = Localisation::Txt_Monnaie();
    preferences.centime = Localisation::Txt_Centime();
    preferences.monnaies = Localisation::Txt_Monnaies();
    preferences.centimes = Localisation::Txt_Centimes();
    const PreferencesLimits limits{static_cast<int>(program_.winMain().PopupMenuBaseOrg.Rows().size()),
        static_cast<int>(program_.winMain().RadioButton09AZ.size())};
    const PreferencesOutcome outcome = ReadPreferencesFile(*DossierPref, limits, preferences);
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
void App::Apply(const Preferences& preferences) {
    WinMain& window = program_.winMain();
    DateDerLaunch = preferences.dateLaunch;
    DejaDonne = preferences.dejaDonne;
    AutoCheckUpdt = preferences.autoCheckUpdt;
    program_.fncts.Annonces = preferences.annonces;
    WinNBP = preferences.winNBP;
    FichNbPrems = GetFitemAbsPath(GetServices().files, preferences.fichNbPrems, false);
    boundAtStart_ = FichNbPrems;
    boundAtStartText_ = preferences.fichNbPrems;
    window.CheckBoxMajusc.Value = preferences.majuscule;
    window.BevelButtonListe.Value = preferences.listeVisible;
    window.primeFile.NbreNbPparLigne = preferences.nbreNbPparLigne;
    window.PopupMenuBaseOrg.ListIndex = preferences.baseOrg;
    window.PopupMenuBaseDest.ListIndex = preferences.baseDest;
    window.RadioButton09AZ[static_cast<std::size_t>(preferences.radio09AZ)].Value = true;
    window.CheckBoxFormatAuto.Value = preferences.formatAuto;
    window.CheckBoxTrUnion.Value = preferences.trUnion;
    window.EditFieldMonnaie.Text = preferences.monnaie;
    window.EditFieldCentime.Text = preferences.centime;
    window.EditFieldMonnaies.Text = preferences.monnaies;
    window.EditFieldCentimes.Text = preferences.centimes;
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

Preferences App::Gather(bool listeVisible) const {
    const WinMain& window = program_.winMain();
    Preferences preferences;
    preferences.dateLaunch = DateDuJour;
    preferences.dejaDonne = DejaDonne;
    preferences.autoCheckUpdt = AutoCheckUpdt;
    preferences.annonces = program_.fncts.Annonces;
    preferences.winMain = {window.Left, window.Top, window.Width, window.Height};
    preferences.majuscule = window.CheckBoxMajusc.Value;
    preferences.winNBP = WinNBP;
    preferences.listeVisible = listeVisible;
    preferences.fichNbPrems =
        PasNil_Existe_Alias(FichNbPrems, false) ? AbsPath_f(*FichNbPrems, true) : std::string();
    preferences.nbreNbPparLigne = window.primeFile.NbreNbPparLigne;
    preferences.baseOrg = window.PopupMenuBaseOrg.ListIndex;
    preferences.baseDest = window.PopupMenuBaseDest.ListIndex;
    preferences.radio09AZ = window.RadioButton09AZ[0].Value()   ? 0
                            : window.RadioButton09AZ[1].Value() ? 1
                                                                : -1;
    preferences.formatAuto = window.CheckBoxFormatAuto.Value;
    preferences.trUnion = window.CheckBoxTrUnion.Value;
    preferences.langue = window.PopupMenuLg.Text();
    preferences.monnaie = window.EditFieldMonnaie.Text();
    preferences.centime = window.EditFieldCentime.Text();
    preferences.monnaies = window.EditFieldMonnaies.Text();
    preferences.centimes = window.EditFieldCentimes.Text();
    return preferences;
}

// A prime file that another instance of the program was bound to meanwhile stays, unless the user has bound
// this one anew, too.
void App::KeepOthersBinding(Preferences& preferences) const {
    Preferences now;
    if (FichNbPrems == boundAtStart_ &&
        ReadPreferencesFile(*DossierPref, PreferencesLimits(), now) == PreferencesOutcome::Read &&
        now.fichNbPrems != boundAtStartText_) {
        preferences.fichNbPrems = now.fichNbPrems;
    }
}

// Throws IOException, with the old file whole.
void App::WritePreferences(bool listeVisible) {
    if (PasNil_Existe_Alias(DossierPref, true)) {
        Preferences preferences = Gather(listeVisible);
        KeepOthersBinding(preferences);
        WritePreferencesFile(*DossierPref, preferences, prefsReadingFailed_);
    }
}

void App::PrefsSauver(bool listeVisible) {
    try {
        WritePreferences(listeVisible);
    } catch (const IOException&) {
        program_.fncts.BeepNbT(failureBeeps);
        program_.fncts.ReportFault("PrefsSauver, problem while writing file!");
    }
}

void App::SavePreferencesQuietly(bool listeVisible) {
    try {
        WritePreferences(listeVisible);
    } catch (const IOException&) {
        return; // the old file stands
    }
}

} // namespace tessarolyne

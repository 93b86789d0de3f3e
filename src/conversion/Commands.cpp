// Menus, buttons and keys of the main window, and the one rule for what may be used when.

#include "app/Program.h"
#include "conversion/WinMain.h"
#include "platform/MenuBar.h"
#include "platform/Text.h"
#include "primes/WinNbresPremiers.h"
#include "ui/Localisation.h"

#include <array>

namespace tessarolyne {

namespace {

// The menu items whose state the program decides.
constexpr std::array commandItems = {
    "FichChoixFichNbP", "FichSauvFichNbP", "AppleAPropos", "AppleVMaJ", "AppleDon", "ApplePrefs", "AideAide"};

} // namespace

void WinMain::EnableMenuBoutons() {
    app.EnableMenuItems();
    const std::array<Control*, 20> controls = {&EditFieldBaseDest, &CheckBoxFormatAuto, &PopupMenuBaseOrg,
        &PopupMenuBaseDest, &RadioButton09AZ[0], &RadioButton09AZ[1], &TxtAreaDecomp1er, &BevelButtonListe,
        &TxtAreaLettres, &EditFieldMonnaies, &EditFieldMonnaie, &EditFieldCentimes, &EditFieldCentime,
        &CheckBoxMajusc, &CheckBoxTrUnion, &PopupMenuLg, &PushButtonPressPapBOrg, &PushButtonPressPapBDest,
        &PushButtonPressPapPrem, &PushButtonPressPapLettr};
    for (Control* control : controls) {
        control->Enabled = fncts.DrapMenu;
    }
    if (BevelButtonListe.Value) {
        WinNbresPremiers& list = program.winNbresPremiers();
        const std::array<Control*, 7> listControls = {&list.PushButtonCalcPrems, &list.EditFieldFin,
            &list.EditFieldAffDu, &list.EditFieldAffAu, &list.TxtAreaListeNbres1ers,
            &list.EditFieldNbNbresLigne, &list.PushButtonFichier};
        for (Control* control : listControls) {
            control->Enabled = fncts.DrapMenu;
        }
    }
}

void WinMain::Event_EnableMenuItems() {
    for (const char* name : commandItems) {
        if (MenuItem* item = app.GetMenuBar()->Find(name)) {
            item->Enabled = fncts.DrapMenu;
        }
    }
}

bool WinMain::Event_KeyDown(const std::string& key) {
    StopOnEscape(key);
    return key != Chr(9);
}

void WinMain::HoldMenuForCalculation(bool hold) {
    calculationHoldsMenu_ = hold;
    fncts.DrapMenu = !hold;
    EnableMenuBoutons();
}

void WinMain::TurnWheel(bool& reason, bool on) {
    reason = on;
    ProgressWheel1.AccessibleName =
        factorsTakeTime_ ? Localisation::Acc_Calcul() : Localisation::Acc_VerMaJ();
    ProgressWheel1.Visible = factorsTakeTime_ || checkTakesTime_;
}

void WinMain::CopyToClipboard(const std::string& texte) {
    fncts.PlayT(fncts.Bip, false);
    fncts.PressPapTxt(texte);
    if (!texte.empty()) {
        fncts.Announce(fncts.FracTexte(Localisation::Txt_Copie(), 1) + texte);
    }
}

void WinMain::PushButtonPressPapBOrg_Action(PushButton&) {
    CopyToClipboard(EditFieldBaseOrg.Text);
}

void WinMain::PushButtonPressPapBDest_Action(PushButton&) {
    CopyToClipboard(EditFieldBaseDest.Text);
}

void WinMain::PushButtonPressPapPrem_Action(PushButton&) {
    CopyToClipboard(TxtAreaDecomp1er.Text);
}

void WinMain::PushButtDecomposer_Action(PushButton&) {
    if (CalculEnCours) {
        fncts.Beep(); // the list window's run may hold the table
        return;
    }
    DecompPremDeb(true);
}

// The button's Value says whether the window is open. It is looked at first: asking for the window makes it.
void WinMain::BevelButtonListe_Action(BevelButton& bouton) {
    if (bouton.Value) {
        program.winNbresPremiers().Close();
    } else {
        program.winNbresPremiers().Show();
    }
}

void WinMain::AddMenuHandlers() {
    const MenuBar& menus = *app.GetMenuBar();
    menus.Find("FichChoixFichNbP")->Action = [this] { return FichChoixFichNbP_Action(); };
    menus.Find("FichSauvFichNbP")->Action = [this] { return FichSauvFichNbP_Action(); };
    AddHelpMenuHandlers();
}

} // namespace tessarolyne

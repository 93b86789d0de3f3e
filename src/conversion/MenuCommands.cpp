// The menu's commands: the prime file, the small windows, pages on the web.

#include "app/Version.h"
#include "conversion/WinMain.h"
#include "platform/MenuBar.h"
#include "primes/WinNbresPremiers.h"
#include "ui/App.h"
#include "ui/Localisation.h"
#include "ui/WinInfos.h"
#include "ui/WinPrefs.h"

#include <array>
#include <utility>

namespace tessarolyne {

void WinMain::AddMenuHandlers() {
    using Handler = bool (WinMain::*)();
    constexpr std::array<std::pair<const char*, Handler>, 7> handlers = {{
        {"FichChoixFichNbP", &WinMain::FichChoixFichNbP_Action},
        {"FichSauvFichNbP", &WinMain::FichSauvFichNbP_Action},
        {"AppleAPropos", &WinMain::AppleAPropos_Action},
        {"AideAide", &WinMain::AideAide_Action},
        {"AppleVMaJ", &WinMain::AppleVMaJ_Action},
        {"ApplePrefs", &WinMain::ApplePrefs_Action},
        {"AppleDon", &WinMain::AppleDon_Action},
    }};
    for (const auto& [name, handler] : handlers) {
        if (MenuItem* item = app.GetMenuBar()->Find(name)) {
            item->Action = [this, act = handler] { return (this->*act)(); };
        }
    }
}

bool WinMain::MenuItemIsEnabled(const char* name) const {
    const MenuItem* item = app.GetMenuBar()->Find(name);
    return item != nullptr && item->Enabled();
}

bool WinMain::FichChoixFichNbP_Action() {
    return UsePrimeFile("FichChoixFichNbP", true);
}

bool WinMain::FichSauvFichNbP_Action() {
    return UsePrimeFile("FichSauvFichNbP", false);
}

bool WinMain::UsePrimeFile(const char* item, bool load) {
    if (MenuItemIsEnabled(item)) {
        if (!BevelButtonListe.Value) {
            program.winNbresPremiers().Show();
        }
        program.winNbresPremiers().Btn_Fich(load, false, false);
    }
    return true;
}

bool WinMain::AppleVMaJ_Action() {
    if (MenuItemIsEnabled("AppleVMaJ")) {
        updateCheck.Start();
    }
    return true;
}

bool WinMain::AppleAPropos_Action() {
    if (MenuItemIsEnabled("AppleAPropos")) {
        program.winInfos().ShowModal();
    }
    return true;
}

bool WinMain::ApplePrefs_Action() {
    if (MenuItemIsEnabled("ApplePrefs")) {
        program.winPrefs().ShowModal();
    }
    return true;
}

bool WinMain::AppleDon_Action() {
    if (MenuItemIsEnabled("AppleDon")) {
        app.DejaDonne = true;
        fncts.ShowURL(donationAddress);
    }
    return true;
}

bool WinMain::AideAide_Action() {
    if (!MenuItemIsEnabled("AideAide")) {
        return true;
    }
    const std::string text = Localisation::Txt_AideNonDispo();
    const std::string message = fncts.FracTexte(text, 1) + "Tessarolyne" + fncts.FracTexte(text, 2) +
                                Localisation::Menu_AppleApropos() + fncts.FracTexte(text, 3) +
                                Fncts::TypeCompil() + fncts.FracTexte(text, 4);
    const int answer = fncts.MyDialogBox(message, "", Localisation::Btn_LireAbout(),
        Localisation::Btn_Fermer(), Localisation::Btn_FAQ(), 0, nullptr, {"", "", questionsAddress});
    if (answer == 1) {
        program.winInfos().ShowModal();
    } else if (answer == 3) {
        fncts.ShowURL(questionsAddress);
    }
    return true;
}

} // namespace tessarolyne

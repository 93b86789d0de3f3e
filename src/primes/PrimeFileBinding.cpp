// Which text file is bound to the table of primes: how the user binds, replaces, opens and releases it.

#include "app/Program.h"
#include "conversion/WinMain.h"
#include "platform/Desktop.h"
#include "platform/MenuBar.h"
#include "platform/Services.h"
#include "primes/WinChargSauvNb1ers.h"
#include "primes/WinNbresPremiers.h"
#include "ui/FileItems.h"
#include "ui/FileTypes.h"
#include "ui/Localisation.h"
#include "ui/NumberFormat.h"

#include <algorithm>
#include <cstdint>

namespace tessarolyne {

namespace {

// With which every table begins.
constexpr std::int64_t firstPrimes = 4;

} // namespace

bool WinMain::FichChoixFichNbP_Action() {
    if (app.GetMenuBar()->Find("FichChoixFichNbP")->Enabled) {
        if (!BevelButtonListe.Value) {
            program.winNbresPremiers().Show();
        }
        program.winNbresPremiers().Btn_Fich(true, false, false);
    }
    return true;
}

bool WinMain::FichSauvFichNbP_Action() {
    if (app.GetMenuBar()->Find("FichSauvFichNbP")->Enabled) {
        if (!BevelButtonListe.Value) {
            program.winNbresPremiers().Show();
        }
        program.winNbresPremiers().Btn_Fich(false, false, false);
    }
    return true;
}

// Option opens the bound file; Shift swaps what a plain click does.
void WinNbresPremiers::Btn_Fich(bool fichDispo, bool touchOption, bool touchMaj) {
    if (touchOption) {
        OpenBoundFile(fichDispo);
        return;
    }
    DefNbreNbPparLigne();
    const bool load = fichDispo != touchMaj;
    const auto chosen = load ? ChooseAndLoad() : ChooseAndSave();
    if (!chosen && app.FichNbPrems) {
        AskToKeepFile();
    }
    ShowBinding();
}

void WinNbresPremiers::OpenBoundFile(bool fichDispo) {
    if (!fichDispo || !program.services.desktop.OpenFile(*app.FichNbPrems)) {
        fncts.Beep();
    }
}

std::optional<FolderItem> WinNbresPremiers::ChooseAndLoad() {
    auto chosen = fncts.MyDialogLoad(
        app.FichNbPrems, Localisation::Txt_SelectFichierNbPrem(), FileTypes::QueText.Text(), nullptr);
    if (chosen && !CanBeKept(*chosen)) {
        chosen.reset();
    }
    if (chosen) {
        ProgressWheel2.Visible = true;
        app.FichNbPrems = MemeItem(chosen);
        program.winChargSauvNb1ers().LoadNb1ers();
        EditFieldAffAu.Text = "0";
        FaireListe(true, false);
        ProgressWheel2.Visible = false;
    }
    return chosen;
}

// A file that can't be replaced is refused before anything is touched; the old one stays whole until the new
// one is complete.
std::optional<FolderItem> WinNbresPremiers::ChooseAndSave() {
    auto chosen = fncts.MyDialogSave(app.FichNbPrems, Localisation::Txt_SelectDossSauv(),
        FileTypes::QueText.Text(), Localisation::WinNbresTitre() + ".txt", nullptr);
    if (chosen && chosen->Exists() && !chosen->CanReplace(LinkPolicy::ReplaceLink)) {
        fncts.Beep();
        fncts.MyDialogBox(
            Localisation::Txt_Rempl_Imposs(), "", Localisation::Btn_Annuler(), "", "", 1, nullptr);
        chosen.reset();
    }
    if (chosen && !CanBeKept(*chosen)) {
        chosen.reset();
    }
    if (chosen) {
        if (chosen != app.FichNbPrems) {
            program.winMain().PrimeFile = {chosen->Stamp(), false}; // the user has agreed to replace this
        }
        app.FichNbPrems = MemeItem(chosen);
        program.winChargSauvNb1ers().SaveNb1ers(LinkPolicy::ReplaceLink);
    }
    return chosen;
}

// A setting is one line: a place that holds a line end could not be found again at the next start.
bool WinNbresPremiers::CanBeKept(const FolderItem& item) {
    const auto isOneLine = [](const FolderItem& place) {
        return place.NativePath().find_first_of("\r\n") == std::string::npos;
    };
    if (isOneLine(item) && isOneLine(GetTargetItem_f(item).value_or(item))) {
        return true;
    }
    fncts.Beep();
    fncts.MyDialogBox(
        Localisation::Txt_FichNomSurLignes(), "", Localisation::Btn_Annuler(), "", "", 1, nullptr);
    return false;
}

void WinNbresPremiers::AskToKeepFile() {
    fncts.Beep();
    const int answer = fncts.MyDialogBox(Localisation::Txt_VoulVsConservFich(), "",
        Localisation::Btn_Garder(), Localisation::Btn_NePlusUtiliser(), "", 0, nullptr);
    if (answer == 2) {
        app.FichNbPrems.reset();
    }
}

// A further line, if a quit would drop primes that are in no file, as it does without asking.
std::string WinNbresPremiers::TextOfUnkeptPrimes() {
    const WinMain& main = program.winMain();
    const std::int64_t inFile = app.FichNbPrems ? 0 : std::int64_t{main.Nb_NbrePcharg}; // a bound one is gone
    const std::int64_t unkept =
        main.Nbres_Premiers.UpperBound() + 1 - std::max(std::int64_t{firstPrimes}, inFile);
    if (unkept <= 0) {
        return {};
    }
    const std::string text = Localisation::Txt_PremsPerdus();
    return "\r" + fncts.FracTexte(text, 1) + FormatWhole(static_cast<std::uint64_t>(unkept), true) +
           fncts.FracTexte(text, 2);
}

void WinNbresPremiers::ShowBinding() {
    if (PasNil_Existe_Alias(app.FichNbPrems, true)) {
        PushButtonFichier.Caption = Localisation::Btn_ChangFich();
        PushButtonFichier.HelpTag = Localisation::Btn_ChangFich_HT();
        StaticTextNbNbre1ers.HelpTag = ShownPath(*app.FichNbPrems);
    } else {
        PushButtonFichier.Caption = Localisation::Btn_SauvFich();
        PushButtonFichier.HelpTag = Localisation::Btn_SauvFich_HT() + TextOfUnkeptPrimes();
        StaticTextNbNbre1ers.HelpTag = Localisation::Txt_PasDeFichNbPremSelect();
    }
}

} // namespace tessarolyne

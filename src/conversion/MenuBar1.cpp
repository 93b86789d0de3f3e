#include "conversion/MenuBar1.h"

#include "conversion/BaseConversion.h"
#include "conversion/WinMain.h"
#include "platform/Numbers.h"
#include "platform/Services.h"
#include "platform/Text.h"
#include "primes/WinNbresPremiers.h"
#include "ui/Localisation.h"
#include "ui/NumberField.h"
#include "ui/Program.h"
#include "ui/Version.h"
#include "ui/WinInfos.h"
#include "ui/WinPrefs.h"

#include <array>

// Menus, buttons and keys of the main window, and the one rule for what may be used when.

namespace tessarolyne {

namespace {

constexpr bool automatic = true;
constexpr bool byProgram = false;

} // namespace

MenuBar1::MenuBar1() {
    using namespace Localisation;
    using Role = MenuRole;

    MenuItem& file = AddMenu("FichMenu", Menu_Fichier(), Alt_Menu_Fichier());
    file.Append("FichChoixFichNbP", Menu_ChoiFichNbP(), Alt_Menu_ChoiFichNbP(), "Cmd+O", byProgram);
    file.Append("FichSauvFichNbP", Menu_SauvFichNbP(), Alt_Menu_SauvFichNbP(), "Cmd+S", byProgram);
    file.Append("UntitledSeparator0", "-", "", "", automatic, Role::Separator);
    file.Append("FichierQuitter", "&Quit", "", "Cmd+Cmd+Q", automatic, Role::Quit);

    MenuItem& edit = AddMenu("EditMenu", Menu_Edit(), Alt_Menu_Edit());
    edit.Append("EditCut", Menu_EditCut(), Alt_Menu_EditCut(), "Cmd+X", automatic, Role::Cut);
    edit.Append("EditCopy", Menu_EditCopy(), Alt_Menu_EditCopy(), "Cmd+C", automatic, Role::Copy);
    edit.Append("EditPaste", Menu_EditPaste(), Alt_Menu_EditPaste(), "Cmd+V", automatic, Role::Paste);
    edit.Append("EditClear", Menu_EditClear(), Alt_Menu_EditClear(), "", automatic, Role::Clear);
    edit.Append(
        "EditSelectAll", Menu_EditSelectAll(), Alt_Menu_EditSelectAll(), "Cmd+A", automatic, Role::SelectAll);
    edit.Append("UntitledSeparator0", "-", "", "", automatic, Role::Separator);
    edit.Append("AppleAPropos", Menu_AppleApropos(), Alt_Menu_AppleApropos(), "", byProgram, Role::About);
    if (offersUpdateCheck) {
        edit.Append("AppleVMaJ", Menu_AppleVMaJ(), Alt_Menu_AppleVMaJ(), "", byProgram, Role::Application);
    }
    if (asksForDonations) {
        edit.Append("AppleDon", Btn_FaireDon(), Alt_Btn_FaireDon(), "", byProgram, Role::Application);
    }
    edit.Append("UntitledSeparator1", "-", "", "", automatic, Role::Separator);
    edit.Append("ApplePrefs", Menu_Preferences(), Alt_Menu_Preferences(), "", byProgram, Role::Preferences);

    MenuItem& help = AddMenu("AideMenu", Menu_Aide(), Alt_Menu_Aide());
    help.Append("AideAide", Menu_AideAide(), Alt_Menu_AideAide(), "Cmd+?", byProgram);
}

void WinMain::EnableMenuBoutons() {
    app.EnableMenuItems();
    EnableControls();
    if (BevelButtonListe.Value) {
        program.winNbresPremiers().EnableControls();
    }
}

void WinMain::Event_EnableMenuItems() {
    for (const auto& menu : app.GetMenuBar()->Menus()) {
        for (const auto& item : menu->Items()) {
            if (!item->AutoEnable) {
                item->Enabled = fncts.DrapMenu;
            }
        }
    }
}

bool WinMain::Event_KeyDown(const std::string& key) {
    calculation.StopOnEscape(key);
    return key != Chr(9);
}

void WinMain::TurnWheel(bool& reason, bool on) {
    reason = on;
    ProgressWheel1.AccessibleName =
        factorsTakeTime_ ? Localisation::Acc_Calcul() : Localisation::Acc_VerMaJ();
    ProgressWheel1.Visible = factorsTakeTime_ || checkTakesTime_;
}

// In the order of sight. Ctrl, which is down then, must not pass for the key that resets the currencies.
void WinMain::AddCopyShortcuts() {
    const std::array<std::pair<PushButton*, TextControl*>, 4> copies = {
        {{&PushButtonPressPapBOrg, &EditFieldBaseOrg}, {&PushButtonPressPapBDest, &EditFieldBaseDest},
            {&PushButtonPressPapPrem, &TxtAreaDecomp1er}, {&PushButtonPressPapLettr, &TxtAreaLettres}}};
    for (std::size_t i = 0; i < copies.size(); ++i) {
        const auto [button, source] = copies[i];
        const std::string digit = Str(static_cast<int>(i) + 1);
        button->KeyTag = Localisation::Touche_Ctrl() + digit;
        AddShortcut("Cmd+" + digit, [this, button = button, source = source] {
            if (button->Enabled()) {
                fncts.CopyToClipboard(source->Text);
            }
        });
    }
}

// In the bases that programs write with a prefix, also with that.
void WinMain::OfferBaseCopies(TextField& source, const PopupMenu& baseMenu) {
    OfferCopies(source, fncts, [this, &baseMenu](const std::string& bare, auto& commands) {
        const int base = baseMenu.ListIndex + smallestBase;
        if (!PrefixOf(base).empty() && RadioButton09AZ[0].Value()) {
            const std::string text = std::string(PrefixOf(base)) + BareDigits(bare, base, entry.Alphabet());
            commands.push_back(
                CopyCommand(fncts, fncts.Filled(Localisation::Txt_CopierForme(), {text}), text));
        }
    });
}

// Ctrl, pressed with the copy button, stands for the language's own currency.
void WinMain::PushButtonPressPapLettr_Action() {
    if (!program.services.desktop.OptionKeyIsDown()) {
        fncts.CopyToClipboard(TxtAreaLettres.Text);
    } else if (app.initProg) {
        words.ResetCurrencies();
    }
}

// The switch between grouped and bare numbers brings what is on the screen into line at once.
void WinMain::CheckBoxFormatAuto_Action() {
    if (!app.initProg) {
        return;
    }
    app.initProg = false; // the changes of text below are no input
    const bool grouped = CheckBoxFormatAuto.Value;
    entry.Regroup(grouped);
    decomposition.Regroup(grouped);
    if (BevelButtonListe.Value) {
        program.winNbresPremiers().Regroup(grouped);
    }
    app.initProg = true;
}

bool WinMain::Event_CancelClose(bool appQuitting) {
    return quitting.CancelClose(appQuitting);
}

void WinMain::PushButtDecomposer_Action() {
    if (calculation.CalculEnCours()) {
        fncts.Beep(); // the list window's run may hold the table
        return;
    }
    decomposition.DecompPremDeb(true);
}

// The button's Value says whether the window is open. It is looked at first: asking for the window makes it.
void WinMain::BevelButtonListe_Action() {
    if (BevelButtonListe.Value) {
        program.winNbresPremiers().Close();
    } else {
        program.winNbresPremiers().Show();
    }
}

// A shortcut reaches a command also when its item isn't enabled: it counts as handled, and does nothing.
void WinMain::AddMenuHandlers() {
    const auto on = [this](const char* name, std::function<void()> command) {
        if (MenuItem* item = app.GetMenuBar()->Find(name)) {
            item->Action = [item, command = std::move(command)] {
                if (item->Enabled) {
                    command();
                }
                return true;
            };
        }
    };
    on("FichChoixFichNbP", [this] { UsePrimeFile(true); });
    on("FichSauvFichNbP", [this] { UsePrimeFile(false); });
    on("AppleAPropos", [this] { program.winInfos().ShowModal(); });
    on("AppleVMaJ", [this] { updateCheck.Start(); });
    on("ApplePrefs", [this] { program.winPrefs().ShowModal(); });
    on("AppleDon", [this] {
        app.DejaDonne = true;
        fncts.ShowURL(donationAddress);
    });
    on("AideAide", [this] { AideAide_Action(); });
}

void WinMain::UsePrimeFile(bool load) {
    if (!BevelButtonListe.Value) {
        program.winNbresPremiers().Show();
    }
    program.winNbresPremiers().Btn_Fich(load, false, false);
}

void WinMain::AideAide_Action() {
    const std::string message = fncts.Filled(Localisation::Txt_AideNonDispo(),
        {"Tessarolyne", Localisation::Menu_AppleApropos(), Fncts::TypeCompil()});
    const int answer = fncts.MyDialogBox(message, "", Localisation::Btn_LireAbout(),
        Localisation::Btn_Fermer(), Localisation::Btn_FAQ(), 0, nullptr, {"", "", questionsAddress});
    if (answer == 1) {
        program.winInfos().ShowModal();
    } else if (answer == 3) {
        fncts.ShowURL(questionsAddress);
    }
}

} // namespace tessarolyne

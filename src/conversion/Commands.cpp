// Menus, buttons and keys of the main window, and the one rule for what may be used when.

#include "app/Program.h"
#include "conversion/BaseDigits.h"
#include "conversion/WinMain.h"
#include "platform/Ascii.h"
#include "platform/MenuBar.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "primes/WinNbresPremiers.h"
#include "ui/Localisation.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessarolyne {

namespace {

// The factors' "x" among them, but no sign that errors and hints have.
bool StandsInNumber(char c) {
    return IsDigit(c) || IsLetter(c) || c == '.';
}

} // namespace

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

void WinMain::PushButtonPressPapBOrg_Action(PushButton&) {
    fncts.CopyToClipboard(EditFieldBaseOrg.Text);
}

void WinMain::PushButtonPressPapBDest_Action(PushButton&) {
    fncts.CopyToClipboard(EditFieldBaseDest.Text);
}

void WinMain::PushButtonPressPapPrem_Action(PushButton&) {
    fncts.CopyToClipboard(TxtAreaDecomp1er.Text);
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

// What fields with groups offer besides copying what is shown: the number without the blanks between its
// groups and, in the bases that programs write with a prefix, with that.
void WinMain::OfferCopies(TextControl& source, PopupMenu* baseMenu) {
    source.ContextCommands = [this, &source, baseMenu] {
        std::vector<TextControl::Command> commands;
        const std::string bare = WithoutBlanks(source.Text());
        if (bare.empty() || !std::all_of(bare.begin(), bare.end(), StandsInNumber)) {
            return commands;
        }
        const auto offer = [&](const std::string& caption, const std::string& text) {
            commands.push_back({caption, [this, text] { fncts.CopyToClipboard(text); }});
        };
        offer(Localisation::Txt_CopierSansEsp(), bare);
        if (baseMenu == nullptr || !RadioButton09AZ[0].Value()) {
            return commands;
        }
        const std::array<std::pair<int, const char*>, 3> prefixes = {{{16, "0x"}, {8, "0o"}, {2, "0b"}}};
        for (const auto& [base, prefix] : prefixes) {
            if (baseMenu->ListIndex == base - 2) {
                const std::string text = prefix + BareDigits(bare, base, Alphabet());
                offer(fncts.FracTexte(Localisation::Txt_CopierForme(), 1) + text, text);
            }
        }
        return commands;
    };
}

void WinMain::PushButtDecomposer_Action(PushButton&) {
    if (calculation.CalculEnCours()) {
        fncts.Beep(); // the list window's run may hold the table
        return;
    }
    decomposition.DecompPremDeb(true);
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

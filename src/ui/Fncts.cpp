#include "ui/Fncts.h"

#include "platform/Application.h"
#include "platform/EventLoop.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "platform/TextControls.h"
#include "ui/FileItems.h"
#include "ui/Localisation.h"
#include "ui/SafeAddress.h"
#include "ui/Version.h"

namespace tessarolyne {

namespace {

constexpr int ticksBetweenBeeps = 10;

} // namespace

void Fncts::Beep() {
    services_.sounds.Beep();
}

void Fncts::Announce(const std::string& texte) {
    if (Annonces && !texte.empty()) {
        services_.announcer.Say(texte);
    }
}

void Fncts::BeepNbT(int nombre) {
    for (int beep = 1; beep <= nombre; ++beep) {
        if (beep > 1) {
            Pause(ticksBetweenBeeps, false);
        }
        Beep();
    }
}

void Fncts::Pause(int ticks, bool doEvents) {
    if (doEvents) {
        MsgBox("Error ! Please contact the authors, Fncts - Pause should no longer use App.DoEvents !");
    }
    Clock& clock = services_.clock;
    const std::int64_t end = clock.Ticks() + ticks;
    services_.loop.WaitUntil([&] { return clock.Ticks() >= end; });
}

void Fncts::PlayT(Sound& son, bool attendre) {
    Sound clone = son;
    Sound& played = son.IsPlaying() ? clone : son;
    played.Play(services_.sounds);
    if (attendre) {
        services_.loop.WaitUntil([&] { return !played.IsPlaying(); });
    }
}

void Fncts::PressPapTxt(const std::string& texte) {
    services_.desktop.SetClipboardText(ReplaceLineEndings(texte, endOfLine));
}

void Fncts::ShowURL(const std::string& adresse) {
    const auto show = [this, adresse] { MsgBox(adresse); };
    if (IsSafeAddress(adresse)) {
        services_.desktop.OpenAddress(adresse, show);
    } else {
        show();
    }
}

std::string Fncts::TypeCompil() {
    return builtFor;
}

std::string Fncts::FracTexte(const std::string& texte, int partie) {
    const auto pieces = Split(texte, Localisation::placeForValue);
    if (partie < 1 || partie > std::ssize(pieces)) {
        const std::string eol(endOfLine);
        ReportFault("FracTexte. Partie = " + Str(partie) + eol + " " + eol + texte);
        return {};
    }
    return std::string(pieces[static_cast<std::size_t>(partie) - 1]);
}

std::string Fncts::Filled(const std::string& texte, const std::vector<std::string>& values) {
    std::string filled = FracTexte(texte, 1);
    for (int partie = 2; const std::string& value : values) {
        filled += value + FracTexte(texte, partie++);
    }
    return filled;
}

void Fncts::CopyToClipboard(const std::string& texte) {
    PlayT(Bip, false);
    PressPapTxt(texte);
    if (!texte.empty()) {
        Announce(Filled(Localisation::Txt_Copie(), {texte}));
    }
}

void Fncts::HoldMenuForCalculation(bool hold) {
    calculationHoldsMenu_ = hold;
    DrapMenu = !hold;
}

void Fncts::RestoreDrapMenu(bool found) {
    DrapMenu = found && !calculationHoldsMenu_;
}

void Fncts::ReportFault(const std::string& place) {
    MsgBox("Error ! Please contact the authors." + std::string(endOfLine) + place);
}

void Fncts::ReportFaultInLines(const std::string& place) {
    const std::string eol(endOfLine);
    MsgBox("Error !" + eol + "Please contact the authors." + eol + place);
}

void Fncts::DecPosCtrl(Window& fenetre) {
    for (Control* control : fenetre.Controls()) {
        if (dynamic_cast<TextField*>(control) != nullptr) {
            control->Top = control->Top() - 1;
        }
    }
}

// Freezes the commands and covers the other windows for as long as a dialog is up, and gives back what it
// found.
class Fncts::DialogProtocol {
public:
    DialogProtocol(Fncts& fncts, Window* fenetre)
        : fncts_(fncts), step_(fncts.app_, nullptr), found_(fncts.DrapMenu), foundDialog_(fncts.DrapDiagBox) {
        fncts_.DrapDiagBox = true;
        fncts_.app_.MouseCursor = Cursor::Standard;
        fncts_.DrapMenu = false;
        sheetOf = fncts_.CtrlDsFenetrDiag(fenetre, true) ? fenetre : nullptr;
    }
    ~DialogProtocol() {
        if (sheetOf != nullptr) {
            fncts_.CtrlDsFenetrDiag(sheetOf, false);
        }
        fncts_.RestoreDrapMenu(found_);
        fncts_.app_.MouseCursor = Cursor::None;
        fncts_.DrapDiagBox = foundDialog_; // a quit may ask over a file chooser
    }
    DialogProtocol(const DialogProtocol&) = delete;
    DialogProtocol& operator=(const DialogProtocol&) = delete;

    Window* sheetOf;

private:
    Fncts& fncts_;
    const Application::ModalStep step_;
    const bool found_;
    const bool foundDialog_;
};

int Fncts::MyDialogBox(const std::string& message, const std::string& explication,
    const std::string& boutonAction, const std::string& boutonAnnuler, const std::string& boutonAutre,
    int icone, Window* fenetre, const DialogHelpTags& bulles) {
    const DialogProtocol protocol(*this, fenetre);
    if (boutonAction.empty()) {
        ReportFaultInLines("My DialogBox, BtnAct = ''");
    }
    return static_cast<int>(services_.dialogs.Ask({message.empty() ? " " : message, explication, boutonAction,
        boutonAnnuler, boutonAutre, bulles, icone, protocol.sheetOf}));
}

void Fncts::Warn(const std::string& message, const std::string& bouton, const std::string& explication) {
    Beep();
    MyDialogBox(message, explication, bouton, "", "", 1, nullptr);
}

bool Fncts::WarnOfMismatch(std::string& last, const std::string& results, const std::string& message) {
    const bool isNew = std::exchange(last, results) != results;
    if (isNew) {
        Warn(message, Localisation::Btn_Ok(), Localisation::Txt_MerciContactAuteur());
    }
    return isNew;
}

std::optional<FolderItem> Fncts::MyDialogLoad(const std::optional<FolderItem>& depart,
    const std::string& invite, const FileType& filtre, Window* fenetre) {
    return ChooseItem(depart, invite, filtre, "", fenetre, false);
}

std::optional<FolderItem> Fncts::MyDialogSave(const std::optional<FolderItem>& depart,
    const std::string& invite, const FileType& filtre, const std::string& nomPropose, Window* fenetre) {
    return ChooseItem(depart, invite, filtre, nomPropose, fenetre, true);
}

std::optional<FolderItem> Fncts::ChooseItem(const std::optional<FolderItem>& depart,
    const std::string& invite, const FileType& filtre, const std::string& nomPropose, Window* fenetre,
    bool toSave) {
    const DialogProtocol protocol(*this, fenetre);
    FileDialog dialog{invite, std::string(filtre.Name), std::string(filtre.Extensions), depart, nomPropose,
        toSave, protocol.sheetOf};
    if (!depart) {
        dialog.initialFolder = FolderItem::Find(services_.files, KnownFolder::Documents);
    } else if (!DossPasPack_f(*depart)) {
        dialog.initialFolder = depart->Parent();
        dialog.suggestedName = depart->Name();
    }
    return services_.dialogs.Choose(dialog);
}

void Fncts::MsgBox(const std::string& texte) {
    const Application::ModalStep step(app_, nullptr);
    services_.dialogs.Tell(texte);
}

} // namespace tessarolyne

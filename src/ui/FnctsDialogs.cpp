#include "ui/Fncts.h"

#include "platform/Application.h"

#include "platform/Dialogs.h"
#include "platform/Services.h"
#include "ui/FileItems.h"

#include <utility>

namespace tessarolyne {

// Freezes the commands for as long as a dialog is up, and gives back what it found.
class Fncts::DialogProtocol {
public:
    explicit DialogProtocol(Fncts& fncts)
        : fncts_(fncts), step_(fncts.app_, nullptr), found_(fncts.DrapMenu), foundDialog_(fncts.DrapDiagBox) {
        fncts_.DrapDiagBox = true;
        fncts_.app_.MouseCursor = Cursor::Standard;
        fncts_.DrapMenu = false;
    }
    ~DialogProtocol() {
        fncts_.RestoreDrapMenu(found_);
        fncts_.app_.MouseCursor = Cursor::None;
        fncts_.DrapDiagBox = foundDialog_; // a quit may ask over a file chooser
    }
    DialogProtocol(const DialogProtocol&) = delete;
    DialogProtocol& operator=(const DialogProtocol&) = delete;

private:
    Fncts& fncts_;
    const Application::ModalStep step_;
    const bool found_;
    const bool foundDialog_;
};

namespace {

FileDialog FilteredDialog(const std::string& filtre) {
    FileDialog dialog;
    if (filtre == FileTypes::QueText.Name) {
        dialog.filterName = FileTypes::QueText.Name;
        dialog.filterExtension = FileTypes::QueText.Extensions;
    }
    return dialog;
}

} // namespace

int Fncts::MyDialogBox(const std::string& message, const std::string& explication,
    const std::string& boutonAction, const std::string& boutonAnnuler, const std::string& boutonAutre,
    int icone, Window* fenetre, const DialogHelpTags& bulles) {
    const DialogProtocol protocol(*this);
    const bool sheet = CtrlDsFenetrDiag(fenetre, true);
    if (boutonAction.empty()) {
        ReportFaultInLines("My DialogBox, BtnAct = ''");
    }
    MessageDialog dialog;
    dialog.message = message.empty() ? " " : message;
    dialog.explanation = explication;
    dialog.actionCaption = boutonAction;
    dialog.cancelCaption = boutonAnnuler;
    dialog.alternateCaption = boutonAutre;
    dialog.actionHelpTag = bulles.action;
    dialog.cancelHelpTag = bulles.cancel;
    dialog.alternateHelpTag = bulles.alternate;
    dialog.icon = icone;
    dialog.sheetOf = sheet ? fenetre : nullptr;
    const DialogButton button = services_.dialogs.Ask(dialog);
    if (sheet) {
        CtrlDsFenetrDiag(fenetre, false);
    }
    switch (button) {
    case DialogButton::Action:
        return 1;
    case DialogButton::Cancel:
        return 2;
    case DialogButton::Alternate:
        return 3;
    case DialogButton::None:
        break;
    }
    return 0;
}

std::optional<FolderItem> Fncts::MyDialogLoad(const std::optional<FolderItem>& depart,
    const std::string& invite, const std::string& filtre, Window* fenetre) {
    FileDialog dialog = FilteredDialog(filtre);
    dialog.prompt = invite;
    return ChooseItem(std::move(dialog), depart, fenetre, false);
}

std::optional<FolderItem> Fncts::MyDialogSave(const std::optional<FolderItem>& depart,
    const std::string& invite, const std::string& filtre, const std::string& nomPropose, Window* fenetre) {
    FileDialog dialog = FilteredDialog(filtre);
    dialog.prompt = invite;
    dialog.suggestedName = nomPropose;
    return ChooseItem(std::move(dialog), depart, fenetre, true);
}

std::optional<FolderItem> Fncts::ChooseItem(
    FileDialog dialog, const std::optional<FolderItem>& depart, Window* fenetre, bool toSave) {
    const DialogProtocol protocol(*this);
    const bool sheet = CtrlDsFenetrDiag(fenetre, true);
    dialog.sheetOf = sheet ? fenetre : nullptr;
    if (!depart) {
        dialog.initialFolder = SpecialFolder::Documents(services_.files);
    } else if (DossPasPack_f(*depart)) {
        dialog.initialFolder = depart;
    } else if (const auto parent = depart->Parent()) {
        dialog.initialFolder = parent;
        dialog.suggestedName = depart->Name();
    } else {
        dialog.suggestedName.clear();
    }
    Dialogs& dialogs = services_.dialogs;
    const auto chosen = toSave ? dialogs.ChooseTarget(dialog) : dialogs.ChooseFile(dialog);
    if (sheet) {
        CtrlDsFenetrDiag(fenetre, false);
    }
    return chosen ? FolderItem::GetTrueFolderItem(services_.files, chosen->URLPath()) : std::nullopt;
}

void Fncts::MsgBox(const std::string& texte) {
    const Application::ModalStep step(app_, nullptr);
    services_.dialogs.Tell(texte);
}

} // namespace tessarolyne

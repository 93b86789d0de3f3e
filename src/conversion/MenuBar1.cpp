#include "conversion/MenuBar1.h"

#include "app/Version.h"
#include "ui/Localisation.h"

namespace tessarolyne {

namespace {

constexpr bool automatic = true;
constexpr bool byProgram = false;

} // namespace

MenuBar1::MenuBar1() {
    using namespace Localisation;
    using Role = MenuRole;

    MenuItem& file = AddMenu("FichMenu", Menu_Fichier());
    file.AltKey = Alt_Menu_Fichier();
    file.Append("FichChoixFichNbP", Menu_ChoiFichNbP(), "Cmd+O", byProgram).AltKey = Alt_Menu_ChoiFichNbP();
    file.Append("FichSauvFichNbP", Menu_SauvFichNbP(), "Cmd+S", byProgram).AltKey = Alt_Menu_SauvFichNbP();
    file.Append("UntitledSeparator0", "-", "", automatic, Role::Separator);
    file.Append("FichierQuitter", "&Quit", "Cmd+Cmd+Q", automatic, Role::Quit);

    MenuItem& edit = AddMenu("EditMenu", Menu_Edit());
    edit.AltKey = Alt_Menu_Edit();
    edit.Append("EditCut", Menu_EditCut(), "Cmd+X", automatic, Role::Cut).AltKey = Alt_Menu_EditCut();
    edit.Append("EditCopy", Menu_EditCopy(), "Cmd+C", automatic, Role::Copy).AltKey = Alt_Menu_EditCopy();
    edit.Append("EditPaste", Menu_EditPaste(), "Cmd+V", automatic, Role::Paste).AltKey = Alt_Menu_EditPaste();
    edit.Append("EditClear", Menu_EditClear(), "", automatic, Role::Clear).AltKey = Alt_Menu_EditClear();
    edit.Append("EditSelectAll", Menu_EditSelectAll(), "Cmd+A", automatic, Role::SelectAll).AltKey =
        Alt_Menu_EditSelectAll();
    edit.Append("UntitledSeparator0", "-", "", automatic, Role::Separator);
    edit.Append("AppleAPropos", Menu_AppleApropos(), "", byProgram, Role::About).AltKey =
        Alt_Menu_AppleApropos();
    if (offersUpdateCheck) {
        edit.Append("AppleVMaJ", Menu_AppleVMaJ(), "", byProgram, Role::Application).AltKey =
            Alt_Menu_AppleVMaJ();
    }
    if (asksForDonations) {
        edit.Append("AppleDon", Btn_FaireDon(), "", byProgram, Role::Application).AltKey = Alt_Btn_FaireDon();
    }
    edit.Append("UntitledSeparator1", "-", "", automatic, Role::Separator);
    edit.Append("ApplePrefs", Menu_Preferences(), "", byProgram, Role::Preferences).AltKey =
        Alt_Menu_Preferences();

    MenuItem& help = AddMenu("AideMenu", Menu_Aide());
    help.AltKey = Alt_Menu_Aide();
    help.Append("AideAide", Menu_AideAide(), "Cmd+?", byProgram).AltKey = Alt_Menu_AideAide();
}

} // namespace tessarolyne

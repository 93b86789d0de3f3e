#include "conversion/MenuBar1.h"

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
    file.Append("FichChoixFichNbP", Menu_ChoiFichNbP(), "Cmd+O", byProgram);
    file.Append("FichSauvFichNbP", Menu_SauvFichNbP(), "Cmd+S", byProgram);
    file.Append("UntitledSeparator0", "-", "", automatic, Role::Separator);
    file.Append("FichierQuitter", "&Quit", "Cmd+Cmd+Q", automatic, Role::Quit);

    MenuItem& edit = AddMenu("EditMenu", Menu_Edit());
    edit.Append("EditCut", Menu_EditCut(), "Cmd+X", automatic, Role::Cut);
    edit.Append("EditCopy", Menu_EditCopy(), "Cmd+C", automatic, Role::Copy);
    edit.Append("EditPaste", Menu_EditPaste(), "Cmd+V", automatic, Role::Paste);
    edit.Append("EditClear", Menu_EditClear(), "", automatic, Role::Clear);
    edit.Append("EditSelectAll", Menu_EditSelectAll(), "Cmd+A", automatic, Role::SelectAll);
    edit.Append("UntitledSeparator0", "-", "", automatic, Role::Separator);
    edit.Append("AppleAPropos", Menu_AppleApropos(), "", byProgram, Role::About);
    edit.Append("AppleVMaJ", Menu_AppleVMaJ(), "", byProgram, Role::Application);
    edit.Append("AppleDon", Btn_FaireDon(), "", byProgram, Role::Application);
    edit.Append("UntitledSeparator1", "-", "", automatic, Role::Separator);
    edit.Append("ApplePrefs", Menu_Preferences(), "", byProgram, Role::Preferences);

    MenuItem& help = AddMenu("AideMenu", Menu_Aide());
    help.Append("AideAide", Menu_AideAide(), "Cmd+?", byProgram);
}

} // namespace tessarolyne

#include "ui/WinPrefs.h"

#include "ui/Localisation.h"
#include "ui/Version.h"

#include <algorithm>

namespace tessarolyne {

namespace {

constexpr int belowMainWindowsTop = 30;

WindowFrame PreferencesFrame() {
    WindowFrame frame;
    frame.kind = WindowFrame::Kind::MovableModal;
    frame.minimizeButton = false;
    return frame;
}

} // namespace

WinPrefs::WinPrefs(Program& owner, const Window& mainWindow)
    : ModalWindow(owner, Localisation::WinPref_Title(), 400, 99, PreferencesFrame()),
      mainWindow_(mainWindow) {
    CheckBoxAutoUpdt.Caption = Localisation::Pref_ChBoxAutoUpdt();
    CheckBoxAutoUpdt.AltKey = Localisation::Alt_Pref_ChBoxAutoUpdt();
    if (!offersUpdateCheck) {
        CheckBoxAutoUpdt.Visible = false;
        CheckBoxAnnonces.Top = CheckBoxAutoUpdt.Top;
    }
    CheckBoxAnnonces.Caption = Localisation::Pref_ChBoxAnnonces();
    ExplainControls();
    CheckBoxAnnonces.AltKey = Localisation::Alt_Pref_ChBoxAnnonces();
    PushButtAnnuler.Caption = Localisation::Btn_Annuler();
    PushButtAnnuler.AltKey = Localisation::Alt_Btn_Annuler();
    PushButtAnnuler.Cancel = true;
    PushButtAnnuler.Action = [this] { EndModal(); };
    PushButtOk.Caption = Localisation::Btn_Ok();
    PushButtOk.AltKey = Localisation::Alt_Btn_Ok();
    PushButtOk.Default = true;
    PushButtOk.Action = [this] {
        app.AutoCheckUpdt = CheckBoxAutoUpdt.Value;
        fncts.Annonces = CheckBoxAnnonces.Value;
        EndModal();
    };
}

// On a screen narrower than the window its right edge stays in sight.
void WinPrefs::Event_Open() {
    LabBlockUI.Open();
    Fncts::DecPosCtrl(*this);
    const int centred = mainWindow_.Left() + (mainWindow_.Width() - Width()) / 2;
    Top = mainWindow_.Top() + belowMainWindowsTop;
    Left = std::min(std::max(centred, 0), program.services.stage.Screen().width - Width());
    OpenModal();
    CheckBoxAutoUpdt.Value = app.AutoCheckUpdt;
    CheckBoxAnnonces.Value = fncts.Annonces;
}

} // namespace tessarolyne

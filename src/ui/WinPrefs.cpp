#include "ui/WinPrefs.h"

#include "ui/Localisation.h"
#include "ui/Version.h"

#include <algorithm>

namespace tessarolyne {

namespace {

constexpr int belowMainWindowsTop = 30;
constexpr WindowFrame preferencesFrame{.kind = WindowFrame::Kind::MovableModal, .minimizeButton = false};

} // namespace

WinPrefs::WinPrefs(Program& owner, const Window& mainWindow)
    : ModalWindow(owner, Localisation::WinPref_Title(), 400, 99, preferencesFrame), mainWindow_(mainWindow) {
    CheckBoxAutoUpdt.Caption = Localisation::Pref_ChBoxAutoUpdt();
    if (!offersUpdateCheck) {
        CheckBoxAutoUpdt.Visible = false;
        CheckBoxAnnonces.Top = CheckBoxAutoUpdt.Top;
    }
    CheckBoxAnnonces.Caption = Localisation::Pref_ChBoxAnnonces();
    ExplainControls();
    PushButtAnnuler.Caption = Localisation::Btn_Annuler();
    PushButtAnnuler.Cancel = true;
    PushButtAnnuler.Action = [this] { EndModal(); };
    PushButtOk.Caption = Localisation::Btn_Ok();
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

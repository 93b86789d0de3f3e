#pragma once

#include "platform/Controls.h"
#include "ui/BlockingOverlay.h"
#include "ui/ProgramWindow.h"

namespace tessarolyne {

// The two preferences with a window of their own: whether the program looks for new versions by itself, and
// whether it announces results to screen readers. All other settings are what the main window's controls
// show.
class WinPrefs final : public ModalWindow {
public:
    // It comes up over the main window.
    WinPrefs(Program& owner, const Window& mainWindow);

    CheckBox CheckBoxAutoUpdt{*this, "CheckBoxAutoUpdt", {20, 14, 360, 20}, lockLeftTop, TabStop(0)};
    CheckBox CheckBoxAnnonces{*this, "CheckBoxAnnonces", {20, 36, 360, 20}, lockLeftTop, TabStop(1)};
    PushButton PushButtAnnuler{*this, "PushButtAnnuler", {199, 59, 100, 20}, lockLeftTop, TabStop(2)};
    PushButton PushButtOk{*this, "PushButtOk", {311, 59, 69, 20}, lockLeftTop, TabStop(3)};
    BlockingOverlay LabBlockUI{*this, fncts, NoTabStop(4)};

    void Event_Open() override;

private:
    const Window& mainWindow_;
};

} // namespace tessarolyne

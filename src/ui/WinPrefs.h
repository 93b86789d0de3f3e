#pragma once

#include "platform/CheckBox.h"
#include "platform/PushButton.h"
#include "ui/BlockingOverlay.h"
#include "ui/ModalWindow.h"

namespace tessarolyne {

// The one preference with a window of its own: whether the program looks for new versions by itself. All
// other settings are what the main window's controls show.
class WinPrefs final : public ModalWindow {
public:
    explicit WinPrefs(Program& owner);

    CheckBox CheckBoxAutoUpdt{*this, "CheckBoxAutoUpdt", {20, 14, 360, 20}, lockLeftTop, TabStop(0)};
    PushButton PushButtAnnuler{*this, "PushButtAnnuler", {199, 59, 100, 20}, lockLeftTop, TabStop(1)};
    PushButton PushButtOk{*this, "PushButtOk", {311, 59, 69, 20}, lockLeftTop, TabStop(2)};
    BlockingOverlay LabBlockUI{*this, fncts, NoTabStop(3)};

    void Event_Open() override;
    bool Event_CancelClose(bool appQuitting) override;
    void PushButtOk_Action(PushButton& bouton);
    void PushButtAnnuler_Action(PushButton& bouton);
};

} // namespace tessarolyne

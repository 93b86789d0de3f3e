#pragma once

#include "ui/ProgramWindow.h"

#include <optional>

namespace tessarolyne {

// A window that holds the program's commands off for as long as it is up, and that only its own controls can
// end: every other request to close it is refused with a beep. A quit goes through all the same, since the
// main window decides it.
class ModalWindow : public ProgramWindow {
public:
    using ProgramWindow::ProgramWindow;

protected:
    // For Event_Open: lowers DrapMenu and keeps what it was.
    void OpenModal();
    // For Event_CancelClose, its result: beeps and refuses, or gives DrapMenu back and lets the window close.
    bool RefuseClose();
    // What the window's own controls do to end it.
    void EndModal();

    bool DrapMovableModal = false; // the window refuses to close
    bool DrapMenuTemp = false;     // DrapMenu as it was when the window opened

private:
    std::optional<Application::ModalStep> step_;
};

} // namespace tessarolyne

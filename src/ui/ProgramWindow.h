#pragma once

#include "platform/Services.h"
#include "platform/Window.h"
#include "ui/Fncts.h"
#include "ui/Program.h"

#include <optional>
#include <string>
#include <vector>

namespace tessarolyne {

// What every window of the program has at hand: the program, and its two shared objects by the names under
// which the handlers speak of them.
class ProgramWindow : public Window {
public:
    ProgramWindow(Program& owner, std::string title, int width, int height, WindowFrame frame);

    // Whether the window can be put back to a place of an earlier run: it is whole on the first screen and
    // below a menu bar there, or whole on another screen that is still there.
    bool CanStandAt(const WindowPlace& place) const;

    // Enables what the user presses or writes in, as Fncts::DrapMenu says, but for `AlwaysEnabled`.
    void EnableControls();

protected:
    // Gives each control the texts that have its name: with "_HT" its help tag, one sentence for those who
    // see it for the first time; with "Acc_" what a screen reader calls it, where it has no caption or shares
    // one; with "Alt_" the letter of its caption that works with Alt. What a control is given otherwise
    // stands.
    void ExplainControls();

    // What stays usable during a calculation, or has a rule of its own.
    std::vector<const Control*> AlwaysEnabled;

    Program& program;
    App& app;
    Fncts& fncts;
};

// A window that holds the program's commands off for as long as it is up, and that only its own controls can
// end: every other request to close it is refused with a beep. A quit goes through all the same, since the
// main window decides it.
class ModalWindow : public ProgramWindow {
public:
    using ProgramWindow::ProgramWindow;

    // Beeps and refuses, or gives DrapMenu back and lets the window close.
    bool Event_CancelClose(bool appQuitting) override;

protected:
    // For Event_Open: lowers DrapMenu and keeps what it was.
    void OpenModal();
    // What the window's own controls do to end it.
    void EndModal();

    bool DrapMovableModal = false; // the window refuses to close
    bool DrapMenuTemp = false;     // DrapMenu as it was when the window opened

private:
    std::optional<Application::ModalStep> step_;
};

} // namespace tessarolyne

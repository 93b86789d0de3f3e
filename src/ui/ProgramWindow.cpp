#include "ui/ProgramWindow.h"

#include "platform/Services.h"

#include <algorithm>
#include <utility>

namespace tessarolyne {

namespace {

// The least Top of a window on the first screen, below a menu bar.
constexpr int smallestTop = 38;

} // namespace

ProgramWindow::ProgramWindow(Surroundings& owner, std::string title, int width, int height, WindowFrame frame)
    : Window(owner.app, std::move(title), width, height, frame), program(owner), app(owner.app),
      fncts(owner.fncts) {}

void ProgramWindow::EnableControls() {
    for (Control* control : Controls()) {
        if (control->TakesFocus() && std::ranges::find(AlwaysEnabled, control) == AlwaysEnabled.end()) {
            control->Enabled = fncts.DrapMenu;
        }
    }
}

bool ProgramWindow::CanStandAt(const WindowPlace& place) const {
    const Stage& stage = program.services.stage;
    const ScreenSize screen = stage.Screen();
    // Compared this way round, a position near the end of its type can't overflow.
    const bool onFirst = place.left >= 0 && place.top >= smallestTop &&
                         place.left <= screen.Width - place.width &&
                         place.top <= screen.Height - place.height;
    return onFirst || stage.IsOnOtherScreen(place);
}

void ModalWindow::OpenModal() {
    step_.emplace(app, this);
    DrapMovableModal = true;
    DrapMenuTemp = fncts.DrapMenu;
    fncts.DrapMenu = false;
}

bool ModalWindow::RefuseClose() {
    if (DrapMovableModal) {
        fncts.Beep();
        return true;
    }
    step_.reset();
    fncts.RestoreDrapMenu(DrapMenuTemp);
    return false;
}

void ModalWindow::EndModal() {
    DrapMovableModal = false;
    Close();
}

} // namespace tessarolyne

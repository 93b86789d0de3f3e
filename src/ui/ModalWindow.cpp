#include "ui/ModalWindow.h"

namespace tessarolyne {

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

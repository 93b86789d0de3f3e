#include "ui/ModalWindow.h"

namespace tessarolyne {

void ModalWindow::OpenModal() {
    DrapMovableModal = true;
    DrapMenuTemp = fncts.DrapMenu;
    fncts.DrapMenu = false;
}

bool ModalWindow::RefuseClose() {
    if (DrapMovableModal) {
        fncts.Beep();
        return true;
    }
    fncts.RestoreDrapMenu(DrapMenuTemp);
    return false;
}

void ModalWindow::EndModal() {
    DrapMovableModal = false;
    Close();
}

} // namespace tessarolyne

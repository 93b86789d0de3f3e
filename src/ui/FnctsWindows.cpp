#include "ui/Fncts.h"

#include "platform/Application.h"

#include "platform/ShownControls.h"
#include "platform/TextControls.h"
#include "ui/BlockingOverlay.h"

#include <vector>

namespace tessarolyne {

namespace {

constexpr int restingSize = 16;

std::vector<Control*> Overlays(const Window& window) {
    std::vector<Control*> found;
    for (Control* control : window.Controls()) {
        if (control->Name == BlockingOverlay::overlayName) {
            found.push_back(control);
        }
    }
    return found;
}

void Cover(Window& window, Fncts& fncts) {
    const auto overlays = Overlays(window);
    if (overlays.empty()) {
        fncts.ReportFaultInLines(
            "CtrlDsFenetrDiag, there is not 'LabBlockUI' in window '" + window.Title() + "'");
        return;
    }
    Control& overlay = *overlays.front();
    overlay.Visible = true;
    overlay.Top = 0;
    overlay.Left = 0;
    overlay.Width = window.Width();
    overlay.Height = window.Height();
    if (!overlay.LockLeft() || !overlay.LockTop()) {
        fncts.ReportFaultInLines("CtrlDsFenetrDiag, 'LabBlockUI' should be Lock Left and Lock Top");
        overlay.LockLeft = true;
        overlay.LockTop = true;
    }
    overlay.LockRight = true;
    overlay.LockBottom = true;
    if (overlays.size() > 1) {
        fncts.ReportFaultInLines(
            "CtrlDsFenetrDiag, there is more than one 'LabBlockUI' in window '" + window.Title() + "'");
    }
}

void Uncover(Window& window) {
    for (Control* overlay : Overlays(window)) {
        overlay->Visible = false;
        overlay->Width = restingSize;
        overlay->Height = restingSize;
        overlay->LockRight = false;
        overlay->LockBottom = false;
    }
}

} // namespace

bool Fncts::CtrlDsFenetrDiag(Window* fenetre, bool montrer) {
    if (montrer && (fenetre == nullptr || !fenetre->Visible())) {
        return false;
    }
    const auto windows = app_.Windows();
    for (auto place = windows.rbegin(); place != windows.rend(); ++place) {
        Window& window = **place;
        if (window.Visible() && &window != fenetre) {
            montrer ? Cover(window, *this) : Uncover(window);
        }
    }
    return montrer;
}

void Fncts::DecPosCtrl(Window& fenetre) {
    for (Control* control : fenetre.Controls()) {
        if (dynamic_cast<TextField*>(control) != nullptr) {
            control->Top = control->Top() - 1;
        }
    }
}

} // namespace tessarolyne

#include "ui/BlockingOverlay.h"

#include "platform/Application.h"
#include "ui/Fncts.h"

namespace tessarolyne {

namespace {

constexpr int restingSize = 16;
constexpr const char* overlayName = "LabBlockUI1";

std::vector<Control*> Overlays(const Window& window) {
    std::vector<Control*> found;
    for (Control* control : window.Controls()) {
        if (control->Name == overlayName) {
            found.push_back(control);
        }
    }
    return found;
}

void Spread(Control& overlay, bool on) {
    const Window& window = overlay.GetWindow();
    overlay.Visible = on;
    overlay.Width = on ? window.Width() : restingSize;
    overlay.Height = on ? window.Height() : restingSize;
    overlay.Lock.right = on;
    overlay.Lock.bottom = on;
}

void Cover(const Window& window, Fncts& fncts) {
    const auto overlays = Overlays(window);
    const std::string inWindow = " 'LabBlockUI' in window '" + window.Title() + "'";
    if (overlays.empty()) {
        fncts.ReportFaultInLines("CtrlDsFenetrDiag, there is not" + inWindow);
        return;
    }
    Control& overlay = *overlays.front();
    overlay.Top = 0;
    overlay.Left = 0;
    Spread(overlay, true);
    if (!overlay.Lock.left || !overlay.Lock.top) {
        fncts.ReportFaultInLines("CtrlDsFenetrDiag, 'LabBlockUI' should be Lock Left and Lock Top");
        overlay.Lock.left = overlay.Lock.top = true;
    }
    if (overlays.size() > 1) {
        fncts.ReportFaultInLines("CtrlDsFenetrDiag, there is more than one" + inWindow);
    }
}

} // namespace

BlockingOverlay::BlockingOverlay(Window& window, Fncts& fncts, TabTurn tab) : window_(window), fncts_(fncts) {
    Append("LabBlockUI", {0, 0, 16, 16}, tab);
    members_[0]->Text = "UI";
}

void BlockingOverlay::Append(std::string name, Place place, TabTurn tab) {
    auto& label =
        *members_.emplace_back(std::make_unique<Label>(window_, std::move(name), place, lockLeftTop, tab));
    label.Visible = false;
    label.IsOverlay = true;
    label.MouseDown = [this](int, int) {
        fncts_.Beep();
        return false;
    };
}

void BlockingOverlay::Open() {
    LabBlockUI_Open(*members_[0]);
    LabBlockUI_Open(*members_[1]);
}

void BlockingOverlay::LabBlockUI_Open(Label& label) {
    if (members_.size() > 1) {
        if (members_.size() > 2) {
            fncts_.ReportFaultInLines("LabBlockUI, LabBlockUI(2) is not Nil");
        }
        return;
    }
    if (label.Parent() != nullptr) {
        fncts_.ReportFaultInLines("LabBlockUI, LabBlockUI(0).Parent is not Nil");
    }
    Append(label.Name + "1", {label.Left, label.Top, label.Width, label.Height}, NoTabStop(label.TabIndex()));
    members_[1]->Text = " ";
    label.Text = " ";
}

bool Fncts::CtrlDsFenetrDiag(Window* fenetre, bool montrer) {
    if (montrer && (fenetre == nullptr || !fenetre->Visible())) {
        return false;
    }
    const auto windows = app_.Windows();
    for (auto place = windows.rbegin(); place != windows.rend(); ++place) {
        Window& window = **place;
        if (window.Visible() && &window != fenetre) {
            if (montrer) {
                Cover(window, *this);
                continue;
            }
            for (Control* overlay : Overlays(window)) {
                Spread(*overlay, false);
            }
        }
    }
    return montrer;
}

} // namespace tessarolyne

#include "ui/BlockingOverlay.h"

#include "platform/Window.h"
#include "ui/Fncts.h"

#include <utility>

namespace tessarolyne {

BlockingOverlay::BlockingOverlay(Window& window, Fncts& fncts, TabTurn tab) : window_(window), fncts_(fncts) {
    Append("LabBlockUI", {0, 0, 16, 16}, tab);
    members_[0]->Text = "UI";
}

void BlockingOverlay::Append(std::string name, Place place, TabTurn tab) {
    auto& label =
        *members_.emplace_back(std::make_unique<Label>(window_, std::move(name), place, lockLeftTop, tab));
    label.Visible = false;
    label.IsOverlay = true;
    label.MouseDown = [this](int, int) { return LabBlockUI_MouseDown(); };
}

void BlockingOverlay::Open() {
    LabBlockUI_Open(*members_[0]);
    LabBlockUI_Open(*members_[1]);
}

void BlockingOverlay::LabBlockUI_Open(Label& label) {
    if (UpperBound() >= 1) {
        if (UpperBound() >= 2) {
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

bool BlockingOverlay::LabBlockUI_MouseDown() {
    fncts_.Beep();
    return false;
}

} // namespace tessarolyne

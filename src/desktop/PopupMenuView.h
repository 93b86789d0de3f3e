#pragma once

#include "desktop/ControlView.h"
#include "platform/PopupMenu.h"

class QComboBox;

namespace tessarolyne {

// A choice of one row. The wheel turns it only while it has the focus, so that scrolling past changes
// nothing.
class PopupMenuView final : public ControlView {
public:
    PopupMenuView(PopupMenu& model, QWidget* parent);

protected:
    void Read() override;

private:
    PopupMenu& model_;
    QComboBox* const box_;
};

} // namespace tessarolyne

#pragma once

#include "desktop/Dimmable.h"

#include <QPlainTextEdit>

#include <functional>

namespace tessarolyne {

// A text of several lines whose copies hold the text alone, without the styles of the screen. Qt's own never
// stops to drag a selection that left it in a single move of the mouse, and takes all input for that.
class PlainEdit final : public Dimmable<QPlainTextEdit> {
public:
    using Dimmable::Dimmable;

    // Shows the menu, which it takes, for a context menu's event; without it the menu is Qt's own.
    std::function<void(QMenu*, const QContextMenuEvent&)> onMenu;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    void mouseMoveEvent(QMouseEvent* event) override;
};

} // namespace tessarolyne

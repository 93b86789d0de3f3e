#include "desktop/PlainEdit.h"

#include <QContextMenuEvent>
#include <QEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextDocumentFragment>

namespace tessarolyne {

QMimeData* PlainEdit::createMimeDataFromSelection() const {
    auto* copied = new QMimeData;
    copied->setText(textCursor().selection().toPlainText());
    return copied;
}

void PlainEdit::contextMenuEvent(QContextMenuEvent* event) {
    if (!onMenu) {
        QPlainTextEdit::contextMenuEvent(event);
    } else if (QMenu* const menu = createStandardContextMenu(event->pos())) {
        onMenu(menu, *event);
    }
}

// A whole drag may have gone by inside, and with it the button's release, which ends the scrolling that else
// moves the mouse, and so begins the drag, again and again.
void PlainEdit::mouseMoveEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseMoveEvent(event);
    if (event->buttons().testFlag(Qt::LeftButton) &&
        !QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) {
        QMouseEvent release(QEvent::MouseButtonRelease, event->position(), event->globalPosition(),
            Qt::LeftButton, Qt::NoButton, event->modifiers());
        mouseReleaseEvent(&release);
    }
}

} // namespace tessarolyne

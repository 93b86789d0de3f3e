#include "desktop/FocusFirst.h"

#include <QAccessible>
#include <QApplication>

namespace tessarolyne {

namespace {

// Who has the focus; unlike QApplication::focusWidget() only once its own handler of the focus has returned.
const QObject* focused = nullptr;

void Tell(QAccessibleEvent* event) {
    const bool isOfCaret =
        event->type() == QAccessible::TextCaretMoved || event->type() == QAccessible::TextSelectionChanged;
    if (isOfCaret && (event->object() != focused || focused != QApplication::focusWidget())) {
        return;
    }
    QAccessible::installUpdateHandler(nullptr); // Qt's own, which has no name, is what stands in its place
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(Tell);
}

} // namespace

void TellFocusBeforeCaret() {
    QAccessible::installUpdateHandler(Tell);
    QObject::connect(
        qApp, &QApplication::focusChanged, qApp, [](const QWidget*, const QWidget* now) { focused = now; });
}

} // namespace tessarolyne

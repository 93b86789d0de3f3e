#include "desktop/PlainEdit.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QMouseEvent>
#include <QPalette>
#include <QTextDocumentFragment>

namespace tessarolyne {

namespace {

// Contrast enough to be read: 4.8 to 1 for black on white, where WCAG 2.1 asks for 4.5. The palette's own
// colour for hints won't do: where a desktop sets none it stays that of light schemes in dark ones.
float Faint(float text, float base) {
    return base + (text - base) * 0.55F;
}

} // namespace

QMimeData* PlainEdit::createMimeDataFromSelection() const {
    auto* copied = new QMimeData;
    copied->setText(textCursor().selection().toPlainText());
    return copied;
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

void PlainEdit::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        ReadPalette();
    }
}

void PlainEdit::SetDimmed(bool dimmed) {
    if (dimmed != dimmed_) {
        dimmed_ = dimmed;
        ReadPalette();
    }
}

// The colour of the text alone is the edit's own; it follows the desktop's, which the parent has.
void PlainEdit::ReadPalette() {
    QPalette own;
    if (dimmed_) {
        const QColor text = parentWidget()->palette().color(QPalette::Active, QPalette::Text);
        const QColor base = parentWidget()->palette().color(QPalette::Active, QPalette::Base);
        own.setColor(
            QPalette::Text, QColor::fromRgbF(Faint(text.redF(), base.redF()),
                                Faint(text.greenF(), base.greenF()), Faint(text.blueF(), base.blueF())));
    }
    setPalette(own);
}

} // namespace tessarolyne

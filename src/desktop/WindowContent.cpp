#include "desktop/WindowContent.h"

#include <QKeyEvent>
#include <QStyle>

#include <algorithm>

namespace tessarolyne {

WindowContent::WindowContent(QWidget* parent) : QScrollArea(parent) {
    setWidget(new QWidget(this));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
}

QSize WindowContent::SizeFor(const QSize& sheet, const QSize& room) const {
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const QSize bars(sheet.height() > room.height() ? bar : 0, sheet.width() > room.width() ? bar : 0);
    return (sheet + bars).boundedTo(room);
}

void WindowContent::keyPressEvent(QKeyEvent* event) {
    event->ignore();
}

} // namespace tessarolyne

#include "desktop/KeyText.h"

#include "desktop/QtText.h"

#include <QKeyEvent>

namespace tessarolyne {

std::string KeyText(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
        return "\r";
    case Qt::Key_Enter:
        return "\x03";
    case Qt::Key_Escape:
        return "\x1B";
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return "\t";
    default:
        break;
    }
    // AltGr may be seen as Ctrl with Alt, and then types a character that can be seen. Ctrl with a letter
    // types a control character, which must not pass for Enter or Return.
    const QString text = event.text();
    const bool command = event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::MetaModifier);
    if (text.isEmpty() || (command && !text.at(0).isPrint())) {
        return {};
    }
    return FromQt(text);
}

} // namespace tessarolyne

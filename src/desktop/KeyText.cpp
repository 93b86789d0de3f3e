#include "desktop/KeyText.h"

#include "desktop/QtText.h"

#include <QKeyEvent>

namespace tessarolyne {

bool IsCommandKey(const QKeyEvent& event) {
#ifdef Q_OS_MACOS
    constexpr auto commands =
        Qt::NoModifier; // Option makes characters there, and Qt itself leaves Command out
#else
    constexpr auto commands = Qt::AltModifier | Qt::MetaModifier;
#endif
    return event.modifiers().testAnyFlags(commands) && !event.text().isEmpty();
}

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
    // AltGr may come with Ctrl, from a remote desktop, and then types a character that can be seen. Ctrl with
    // a letter types a control character, which must not pass for Enter or Return.
    const QString text = event.text();
    const bool command = event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::MetaModifier);
    if (text.isEmpty() || IsCommandKey(event) || (command && !text.at(0).isPrint())) {
        return {};
    }
    return FromQt(text);
}

} // namespace tessarolyne

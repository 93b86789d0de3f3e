#include "desktop/KeyText.h"

#include "desktop/QtText.h"

#include <QKeyEvent>

namespace tessarolyne {

namespace {

std::string MovingKey(int key) {
    switch (key) {
    case Qt::Key_PageUp:
        return "\x0B";
    case Qt::Key_PageDown:
        return "\x0C";
    case Qt::Key_Up:
        return "\x1E";
    case Qt::Key_Down:
        return "\x1F";
    default:
        return {};
    }
}

} // namespace

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
    const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::NoModifier && !MovingKey(event.key()).empty()) {
        return MovingKey(event.key());
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

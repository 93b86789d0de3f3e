#include "desktop/QtApplication.h"

#include "desktop/QtText.h"
#include "desktop/Resources.h"
#include "desktop/TextEdits.h"

#include <QIcon>
#include <QSessionManager>
#include <QSocketNotifier>

#include <cstdlib>
#include <iostream>
#include <utility>

namespace tessarolyne {

namespace {

constexpr const char* platformVariable = "QT_QPA_PLATFORM";

// What the user chose, as it stood when it was first asked for.
const QByteArray& ChosenPlatform() {
    static const QByteArray chosen = qgetenv(platformVariable);
    return chosen;
}

// The session's own first; the other may be there all the same, or its plugin alone.
QByteArray Platforms() {
    const bool isWayland =
        !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland";
    return !ChosenPlatform().isEmpty() ? ChosenPlatform() : isWayland ? "wayland;xcb" : "xcb;wayland";
}

// Qt tells each display that it doesn't find, and where none is left it aborts, which leaves a core.
void TellMissingDisplay(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg) {
        std::cerr << "tessarolyne: no display can be opened as " << Platforms().toStdString()
                  << " (DISPLAY is “" << qgetenv("DISPLAY").toStdString() << "”, WAYLAND_DISPLAY “"
                  << qgetenv("WAYLAND_DISPLAY").toStdString() << "”)" << std::endl;
        std::_Exit(1);
    }
    const bool isAboutDisplays = type == QtCriticalMsg || qstrncmp(context.category, "qt.qpa.", 7) == 0;
    if (type == QtDebugMsg || !isAboutDisplays) {
        std::cerr << FromQt(qFormatLogMessage(type, context, text)) << std::endl;
    }
}

// Tells Qt which to look for, and hears what it says of that.
int& LookForDisplay(int& count) {
#ifdef Q_OS_LINUX
    qputenv(platformVariable, Platforms());
#endif
    qInstallMessageHandler(TellMissingDisplay);
    return count;
}

} // namespace

QtApplication::QtApplication(
    const std::string& name, const std::string& identifier, int& count, char** arguments)
    : QApplication(LookForDisplay(count), arguments) {
    qputenv(platformVariable, ChosenPlatform()); // for the programs that this one starts
    qInstallMessageHandler(nullptr);
    setLayoutDirection(Qt::LeftToRight); // as all numbers and all texts are, on every desktop
    setApplicationName(ToQt(name));
    setDesktopFileName(ToQt(identifier));
    setQuitOnLastWindowClosed(false);
    const auto* const proxy = qobject_cast<const QProxyStyle*>(style()); // a desktop's, around what it chose
    if ((proxy == nullptr ? style() : proxy->baseStyle())->name() == u"fusion") {
        setStyle(new OutlinedStyle);
    }
    TellFocusBeforeCaret();
    LoadIcon();
    connect(this, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) { OnSessionEnds(); });
}

// From the files of the desktop's icon theme, without the theme: to look a name up in it takes 5 ms, and it
// would bring the largest sizes too, over a megabyte for an X server that shows none of them.
void QtApplication::LoadIcon() {
#ifndef Q_OS_MACOS // where the bundle has it
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128}) {
        const auto file = QStringLiteral("icons/hicolor/%1x%1/apps/%2.png").arg(size).arg(desktopFileName());
        icon.addFile(ResourcePath(file.toStdString()));
    }
    setWindowIcon(icon);
#endif
}

void QtApplication::WatchDescriptor(int descriptor, std::function<void()> readable) {
    auto* const watch = new QSocketNotifier(descriptor, QSocketNotifier::Read, this);
    connect(watch, &QSocketNotifier::activated, this, [readable = std::move(readable)] { readable(); });
}

bool QtApplication::event(QEvent* event) {
    if (event->type() == QEvent::Quit) {
        event->ignore();
        OnQuitRequested();
        return true;
    }
    return QApplication::event(event);
}

} // namespace tessarolyne

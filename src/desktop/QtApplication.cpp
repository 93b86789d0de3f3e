#include "desktop/QtApplication.h"

#include "desktop/FocusFirst.h"
#include "desktop/OutlinedStyle.h"
#include "desktop/QtText.h"
#include "desktop/Resources.h"

#include <QEvent>
#include <QIcon>
#include <QSessionManager>
#include <QSocketNotifier>

#include <string>
#include <utility>

namespace tessarolyne {

namespace {

bool PrefersX() {
#ifdef Q_OS_LINUX
    return !qEnvironmentVariableIsEmpty("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
#else
    return false;
#endif
}

} // namespace

detail::QtArguments::QtArguments(std::span<const char* const> more) : texts{"tessarolyne"} {
    if (PrefersX()) {
        texts.insert(texts.end(), {"-platform", "xcb"});
    }
    texts.insert(texts.end(), more.begin(), more.end());
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    count = static_cast<int>(texts.size());
}

QtApplication::QtApplication(
    const std::string& name, const std::string& identifier, std::span<const char* const> options)
    : QtArguments(options), QApplication(count, pointers.data()) {
    setApplicationName(ToQt(name));
    setDesktopFileName(ToQt(identifier));
    setQuitOnLastWindowClosed(false);
    if (style()->name() == u"fusion") {
        setStyle(new OutlinedStyle);
    }
    TellFocusBeforeCaret();
    LoadIcon();
    connect(this, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) {
        if (OnSessionEnds) {
            OnSessionEnds();
        }
    });
}

QtApplication::~QtApplication() = default;

// From the files of the desktop's icon theme, without the theme: to look a name up in it takes 5 ms, and it
// would bring the largest sizes too, over a megabyte for an X server that shows none of them.
void QtApplication::LoadIcon() {
#ifndef Q_OS_MACOS // where the bundle has it
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128}) {
        const std::string side = std::to_string(size);
        std::string file = "icons/hicolor/";
        file.append(side).append("x").append(side).append("/apps/");
        icon.addFile(ResourcePath(file.append(desktopFileName().toStdString()).append(".png")));
    }
    setWindowIcon(icon);
#endif
}

void QtApplication::WatchDescriptor(int descriptor, std::function<void()> readable) {
    auto watch = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    connect(watch.get(), &QSocketNotifier::activated, this, [readable = std::move(readable)] { readable(); });
    watches_.push_back(std::move(watch));
}

bool QtApplication::event(QEvent* event) {
    if (event->type() == QEvent::Quit && OnQuitRequested) {
        event->ignore();
        OnQuitRequested();
        return true;
    }
    return QApplication::event(event);
}

} // namespace tessarolyne

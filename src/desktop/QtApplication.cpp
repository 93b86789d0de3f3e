#include "desktop/QtApplication.h"

#include "desktop/QtText.h"

#include <QEvent>
#include <QSessionManager>
#include <QSocketNotifier>

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

detail::QtArguments::QtArguments() : texts{"tessarolyne"} {
    if (PrefersX()) {
        texts.insert(texts.end(), {"-platform", "xcb"});
    }
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    count = static_cast<int>(texts.size());
}

QtApplication::QtApplication(const std::string& name, const std::string& identifier)
    : QApplication(count, pointers.data()) {
    setApplicationName(ToQt(name));
    setDesktopFileName(ToQt(identifier));
    setQuitOnLastWindowClosed(false);
    connect(this, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) {
        if (OnSessionEnds) {
            OnSessionEnds();
        }
    });
}

QtApplication::~QtApplication() = default;

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

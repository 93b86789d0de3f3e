#include "desktop/QtStage.h"

#include "desktop/QtMenu.h"
#include "desktop/WindowView.h"
#include "platform/Application.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace tessarolyne {

QtStage::QtStage() = default;

// What is still shown when the program ends goes with the stage; the models are gone by then or silent.
QtStage::~QtStage() {
    for (const auto& view : views_) {
        delete view.data();
    }
}

void QtStage::Present(Window& window) {
    Application& application = window.GetApplication();
    Observe(application);
    std::erase_if(views_, [](const auto& view) { return view.isNull(); });
    const bool withBar = menu_ == nullptr && application.GetMenuBar() != nullptr;
    if (withBar) {
        menu_ = std::make_unique<QtMenu>(application, *application.GetMenuBar());
    }
    views_.push_back(new WindowView(window, menu_.get(), withBar));
}

ScreenSize QtStage::Screen() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? ScreenSize() : ScreenSize{screen->size().width(), screen->size().height()};
}

bool QtStage::IsOnOtherScreen(const WindowPlace& place) const {
    const QRect wanted(place.left, place.top, place.width, place.height);
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        return screen != QGuiApplication::primaryScreen() && screen->geometry().contains(wanted);
    });
}

WindowView* QtStage::Find(const Window* window) const {
    const auto found = std::find_if(views_.begin(), views_.end(),
        [&](const auto& view) { return !view.isNull() && view->isVisible() && &view->Model() == window; });
    return found == views_.end() ? nullptr : found->data();
}

void QtStage::Observe(Application& application) {
    if (!observes_) {
        observes_ = true;
        applicationChanged_ = application.Changed.Connect([this, &application] { ReadCursor(application); });
        ReadCursor(application);
    }
}

// The application's pointer goes before those of windows and controls.
void QtStage::ReadCursor(const Application& application) {
    if (cursorIsSet_) {
        QGuiApplication::restoreOverrideCursor();
        cursorIsSet_ = false;
    }
    if (application.MouseCursor() != Cursor::None) {
        QGuiApplication::setOverrideCursor(
            application.MouseCursor() == Cursor::Finger ? Qt::PointingHandCursor : Qt::ArrowCursor);
        cursorIsSet_ = true;
    }
}

} // namespace tessarolyne

#include "platform/Application.h"

#include "platform/EventLoop.h"
#include "platform/Services.h"

#include <algorithm>

namespace tessarolyne {

void MenuItem::UserChose(Application& application) {
    application.EnableMenuItems();
    if (Role == MenuRole::Quit) {
        application.RequestQuit();
    } else if (!application.HasModalStep() && !application.GetServices().loop.IsWaiting()) {
        Action();
    }
}

MenuItem* MenuBar::Find(std::string_view name) const {
    for (const auto& menu : menus_) {
        if (menu->Name == name) {
            return menu.get();
        }
        for (const auto& item : menu->Items()) {
            if (item->Name == name) {
                return item.get();
            }
        }
    }
    return nullptr;
}

Application::ModalStep::ModalStep(Application& application, const Window* window)
    : application_(application), window_(window) {
    application_.modalSteps_.push_back(this);
}

Application::ModalStep::~ModalStep() {
    std::erase(application_.modalSteps_, this);
}

bool Application::LetsUserInto(const Window& window) const {
    return !services_.loop.IsWaiting() && (modalSteps_.empty() || modalSteps_.back()->window_ == &window);
}

void Application::EnableMenuItems() {
    const auto present = windows_;
    for (Window* window : present) {
        window->Event_EnableMenuItems();
    }
}

void Application::RequestQuit() {
    if (services_.loop.IsWaiting()) { // no question may come up inside a wait
        services_.loop.Post([this] { RequestQuit(); });
        return;
    }
    bool refused = false;
    const auto present = windows_;
    for (Window* window : present) {
        const bool alive = std::find(windows_.begin(), windows_.end(), window) != windows_.end();
        if (alive && !window->IsClosed() && window->Event_CancelClose(true)) {
            refused = true;
        }
    }
    if (!refused) {
        Quit(0);
    }
}

void Application::Quit(int exitCode) {
    services_.loop.Quit(exitCode);
}

} // namespace tessarolyne

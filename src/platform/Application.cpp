#include "platform/Application.h"

#include "platform/EventLoop.h"
#include "platform/Services.h"

#include <algorithm>

namespace tessarolyne {

void Application::EnableMenuItems() {
    const auto present = windows_;
    for (Window* window : present) {
        window->Event_EnableMenuItems();
    }
}

void Application::RequestQuit() {
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

void Application::WindowClosed(Window& window) {
    if (OnWindowClosed) {
        OnWindowClosed(window);
    }
}

} // namespace tessarolyne

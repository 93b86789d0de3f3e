#pragma once

#include "platform/Event.h"
#include "platform/Services.h"

#include <QPointer>

#include <memory>
#include <vector>

namespace tessarolyne {

class Application;
class QtMenu;
class WindowView;

// The user's screens. The first window that is shown bears the menu bar, where the platform has none of its
// own; the others obey its shortcuts.
class QtStage final : public Stage {
public:
    QtStage();
    ~QtStage() override;

    void Present(Window& window) override;
    ScreenSize Screen() const override;
    bool IsOnOtherScreen(const WindowPlace& place) const override;

    // The real window of a model; null if it isn't shown or has closed.
    WindowView* Find(const Window* window) const;

private:
    void Observe(Application& application);
    void ReadCursor(const Application& application);

    std::vector<QPointer<WindowView>> views_;
    std::unique_ptr<QtMenu> menu_;
    Connection applicationChanged_;
    bool observes_ = false;
    bool cursorIsSet_ = false;
};

} // namespace tessarolyne

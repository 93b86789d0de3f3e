#pragma once

#include "desktop/ControlView.h"
#include "desktop/WindowFocus.h"
#include "platform/Application.h"
#include "platform/Event.h"

#include <QMenuBar>

#include <memory>
#include <utility>
#include <vector>

class QAction;

namespace tessarolyne {

class Application;
class Window;
class WindowContent;

// The program's menus as Qt's. While no menu is open every action can be triggered, since Qt ignores the
// shortcut of a disabled one: the model's item then decides by itself. An open menu shows what is enabled.
class QtMenu final : public QObject {
public:
    QtMenu(Application& application, MenuBar& menus) : application_(application), menus_(menus) {}

    // Makes the bar with the menus in the first window, and gives it; in any other lets the shortcuts work.
    QMenuBar* AddTo(QWidget& window);

private:
    void AddMenu(const MenuItem& model);
    void AboutToShow();
    void Trigger(MenuItem& item);

    Application& application_;
    MenuBar& menus_;
    QMenuBar* bar_ = nullptr;
    std::vector<std::pair<MenuItem*, QAction*>> actions_;
};

// The window that has the keyboard; while another program has it, the first that is shown. Null if none is.
QWidget* WindowInUse();

// Lets a free-standing dialog stand before that window: a click on it would else take the keys from the one
// that waits for an answer.
void StandBeforeOthers(QWidget& dialog);

// The real window of a model: its frame, menu bar and controls. The menu bar stands above the model's
// area, which keeps its size and scrolls where the screen is smaller. The view never closes by itself; it
// asks the model, and goes when that has closed.
class WindowView final : public QWidget {
public:
    // `menu` may be null; the first window that has it shows the bar.
    WindowView(Window& window, QtMenu* menu);

    Window& Model() const { return window_; }
    // The widget of the control that has the program's focus; null if none has it.
    QWidget* FocusedWidget() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; } // WindowFocus has Tab

private:
    void AddShortcuts();
    void Observe();
    void AddViews();
    ControlView* Find(const Control* control) const;
    void Read();
    void ReadSize();
    QSize Room() const;
    void PullOntoScreen();
    void ReadPlace();
    void ReadVisible();
    void TellPlace();
    int BarHeight() const;
    void GiveKeysToDialog();

    Window& window_;
    WindowContent* const content_;
    QMenuBar* const bar_; // null in all windows but one
    std::vector<std::unique_ptr<ControlView>> views_;
    std::vector<Connection> connections_;
    bool reading_ = false;
    bool placed_ = false; // the window manager has answered where the window stands
    WindowFocus focus_;
};

} // namespace tessarolyne

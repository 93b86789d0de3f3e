#pragma once

#include "platform/Event.h"
#include "platform/MenuBar.h"

#include <QMenuBar>
#include <QObject>

#include <utility>
#include <vector>

class QAction;
class QMenu;
class QWidget;

namespace tessarolyne {

class Application;
class WindowView;

// The program's menus as Qt's. While no menu is open every action can be triggered, since Qt ignores the
// shortcut of a disabled one: the model's item then decides by itself. An open menu shows what is enabled.
class QtMenu final : public QObject {
public:
    QtMenu(Application& application, MenuBar& menus);

    // The bar with the menus, as a child of the window.
    QMenuBar* AddBar(WindowView& window);
    // Lets the shortcuts work in the window.
    void AddShortcuts(WindowView& window);

private:
    void Fill(QMenu& menu, const MenuItem& model);
    QAction* Make(MenuItem& item, QObject& owner);
    void ReadCaption(const MenuItem& item, QAction& action);
    void AboutToShow();
    void AboutToHide();
    void Trigger(MenuItem& item);

    Application& application_;
    MenuBar& menus_;
    QMenuBar* bar_ = nullptr;
    std::vector<std::pair<MenuItem*, QAction*>> actions_;
    std::vector<Connection> connections_;
};

} // namespace tessarolyne

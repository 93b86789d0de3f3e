#pragma once

#include "platform/MenuBar.h"

#include <QMenuBar>
#include <QObject>

#include <utility>
#include <vector>

class QAction;

namespace tessarolyne {

class Application;

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

} // namespace tessarolyne

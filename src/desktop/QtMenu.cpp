#include "desktop/QtMenu.h"

#include "desktop/QtText.h"
#include "desktop/TextEdits.h"
#include "desktop/WindowView.h"
#include "platform/Application.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenu>

namespace tessarolyne {

namespace {

// "Cmd" is Ctrl in Qt's words, on macOS too; the quit item names it twice.
QList<QKeySequence> Shortcuts(const std::string& shortcut) {
    if (shortcut.empty()) {
        return {};
    }
    QString keys = ToQt(shortcut);
    keys.remove(QLatin1String("Cmd+"));
    QList<QKeySequence> sequences{QKeySequence(QLatin1String("Ctrl+") + keys)};
    if (keys == u'?') {
        sequences += QKeySequence::keyBindings(QKeySequence::HelpContents);
    }
    return sequences;
}

QAction::MenuRole QtRole(MenuRole role) {
    switch (role) {
    case MenuRole::Quit:
        return QAction::QuitRole;
    case MenuRole::About:
        return QAction::AboutRole;
    case MenuRole::Application:
        return QAction::ApplicationSpecificRole;
    case MenuRole::Preferences:
        return QAction::PreferencesRole;
    default:
        return QAction::NoRole;
    }
}

// "&" marks the mnemonic only where a caption begins with it; elsewhere it is a character.
QString MenuCaption(const MenuItem& item) {
    const std::string& caption = item.Caption();
    return caption.starts_with('&') ? ToQt(caption) : WithAltKey(caption, item.AltKey);
}

// Where the edit commands act: the control with the program's focus, though the menu has Qt's.
QWidget* EditTarget() {
    QWidget* const active = QApplication::activeWindow();
    const auto* view = dynamic_cast<WindowView*>(active);
    return view != nullptr ? view->FocusedWidget() : QApplication::focusWidget();
}

} // namespace

QtMenu::QtMenu(Application& application, MenuBar& menus) : application_(application), menus_(menus) {}

QMenuBar* QtMenu::AddBar(WindowView& window) {
    bar_ = new QMenuBar(&window);
    for (const auto& model : menus_.Menus()) {
        QMenu* const menu = bar_->addMenu(MenuCaption(*model));
        Fill(*menu, *model);
        connect(menu, &QMenu::aboutToShow, this, [this] { AboutToShow(); });
        connect(menu, &QMenu::aboutToHide, this, [this] { AboutToHide(); });
        connections_.push_back(
            model->Changed.Connect([menu, item = model.get()] { menu->setTitle(MenuCaption(*item)); }));
    }
    auto* const open = new QAction(bar_);
    open->setShortcut(QKeySequence(Qt::Key_F10));
    connect(open, &QAction::triggered, bar_, [bar = bar_] {
        if (!bar->actions().isEmpty()) {
            bar->setActiveAction(bar->actions().constFirst());
        }
    });
    window.addAction(open);
    return bar_;
}

void QtMenu::Fill(QMenu& menu, const MenuItem& model) {
    for (const auto& item : model.Items()) {
        if (item->Role == MenuRole::Separator || item->Caption == "-") {
            menu.addSeparator();
        } else {
            menu.addAction(Make(*item, menu));
        }
    }
}

QAction* QtMenu::Make(MenuItem& item, QObject& owner) {
    auto* const action = new QAction(&owner);
    action->setObjectName(ToQt(item.Name));
    action->setMenuRole(QtRole(item.Role));
    action->setShortcuts(Shortcuts(item.KeyboardShortcut));
    ReadCaption(item, *action);
    connect(action, &QAction::triggered, this, [this, &item] { Trigger(item); });
    connections_.push_back(item.Changed.Connect([this, &item, action] { ReadCaption(item, *action); }));
    actions_.emplace_back(&item, action);
    return action;
}

void QtMenu::ReadCaption(const MenuItem& item, QAction& action) {
    const QString caption = MenuCaption(item);
    if (action.text() != caption) {
        action.setText(caption);
    }
}

void QtMenu::AddShortcuts(WindowView& window) {
    if (bar_ != nullptr && bar_->window() == &window) {
        return; // the bar's own window has them already
    }
    for (const auto& [item, action] : actions_) {
        window.addAction(action);
    }
}

void QtMenu::AboutToShow() {
    application_.EnableMenuItems();
    QWidget* const target = EditTarget();
    for (const auto& [item, action] : actions_) {
        action->setEnabled(IsEditRole(item->Role) ? CanEdit(target, item->Role) : item->Enabled());
    }
}

void QtMenu::AboutToHide() {
    for (const auto& [item, action] : actions_) {
        action->setEnabled(true);
    }
}

void QtMenu::Trigger(MenuItem& item) {
    if (IsEditRole(item.Role)) {
        Edit(EditTarget(), item.Role);
    } else {
        item.UserChose(application_);
    }
}

} // namespace tessarolyne

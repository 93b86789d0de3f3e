#include "desktop/QtText.h"
#include "desktop/TextEdits.h"
#include "desktop/WindowView.h"
#include "platform/Application.h"

#include <QApplication>
#include <QMenu>
#include <QShortcut>

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
    return role == MenuRole::Quit          ? QAction::QuitRole
           : role == MenuRole::About       ? QAction::AboutRole
           : role == MenuRole::Application ? QAction::ApplicationSpecificRole
           : role == MenuRole::Preferences ? QAction::PreferencesRole
                                           : QAction::NoRole;
}

// "&" marks the mnemonic only where a caption begins with it; elsewhere it is a character.
QString MenuCaption(const MenuItem& item) {
    return item.Caption.starts_with('&') ? ToQt(item.Caption) : WithAltKey(item.Caption, item.AltKey);
}

// Where the edit commands act: the control with the program's focus, though the menu has Qt's.
QWidget* EditTarget() {
    QWidget* const active = QApplication::activeWindow();
    const auto* view = dynamic_cast<WindowView*>(active);
    return view != nullptr ? view->FocusedWidget() : QApplication::focusWidget();
}

} // namespace

QMenuBar* QtMenu::AddTo(QWidget& window) {
    if (bar_ != nullptr) {
        for (const auto& [item, action] : actions_) {
            window.addAction(action);
        }
        return nullptr;
    }
    bar_ = new QMenuBar(&window);
    for (const auto& menu : menus_.Menus()) {
        AddMenu(*menu);
    }
    new QShortcut(QKeySequence(Qt::Key_F10), &window, bar_,
        [bar = bar_] { bar->setActiveAction(bar->actions().constFirst()); });
    return bar_;
}

void QtMenu::AddMenu(const MenuItem& model) {
    QMenu* const menu = bar_->addMenu(MenuCaption(model));
    connect(menu, &QMenu::aboutToShow, this, [this] { AboutToShow(); });
    connect(menu, &QMenu::aboutToHide, this, [this] {
        for (const auto& [item, action] : actions_) {
            action->setEnabled(true);
        }
    });
    for (const auto& item : model.Items()) {
        if (item->Role == MenuRole::Separator) {
            menu->addSeparator();
            continue;
        }
        QAction* const action = menu->addAction(MenuCaption(*item));
        action->setObjectName(ToQt(item->Name));
        action->setMenuRole(QtRole(item->Role));
        action->setShortcuts(Shortcuts(item->KeyboardShortcut));
        connect(action, &QAction::triggered, this, [this, item = item.get()] { Trigger(*item); });
        actions_.emplace_back(item.get(), action);
    }
}

void QtMenu::AboutToShow() {
    application_.EnableMenuItems();
    QWidget* const target = EditTarget();
    for (const auto& [item, action] : actions_) {
        action->setEnabled(IsEditRole(item->Role) ? CanEdit(target, item->Role) : item->Enabled);
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

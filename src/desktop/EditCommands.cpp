#include "desktop/EditCommands.h"

#include "desktop/QtText.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>

namespace tessarolyne {

void OpenContextMenu(QMenu* menu, TextControl& control, const QContextMenuEvent& event) {
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto commands =
        control.ContextCommands ? control.ContextCommands() : std::vector<TextControl::Command>();
    if (!commands.empty()) {
        menu->addSeparator();
    }
    for (const TextControl::Command& command : commands) {
        QAction* const action = menu->addAction(LiteralCaption(command.caption));
        QObject::connect(
            action, &QAction::triggered, menu, [&control, command] { control.UserChoseCommand(command); });
    }
    menu->popup(event.globalPos());
}

namespace {

struct TextState {
    bool writable = false;
    bool selected = false;
    bool empty = true;
};

bool ReadState(const QWidget* target, TextState& state) {
    if (target == nullptr || !target->isEnabled()) {
        return false;
    }
    if (const auto* line = qobject_cast<const QLineEdit*>(target)) {
        state = {!line->isReadOnly(), line->hasSelectedText(), line->text().isEmpty()};
        return true;
    }
    if (const auto* area = qobject_cast<const QPlainTextEdit*>(target)) {
        state = {!area->isReadOnly(), area->textCursor().hasSelection(), area->document()->isEmpty()};
        return true;
    }
    return false;
}

// By its key, so that it goes the way of every other paste.
void PressPaste(QWidget& target) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier);
    QCoreApplication::sendEvent(&target, &press);
}

} // namespace

bool IsEditRole(MenuRole role) {
    return role == MenuRole::Cut || role == MenuRole::Copy || role == MenuRole::Paste ||
           role == MenuRole::Clear || role == MenuRole::SelectAll;
}

bool CanEdit(const QWidget* target, MenuRole role) {
    TextState state;
    if (!ReadState(target, state)) {
        return false;
    }
    switch (role) {
    case MenuRole::Copy:
        return state.selected;
    case MenuRole::Cut:
    case MenuRole::Clear:
        return state.selected && state.writable;
    case MenuRole::Paste:
        return state.writable && !QGuiApplication::clipboard()->text().isEmpty();
    case MenuRole::SelectAll:
        return !state.empty;
    default:
        return false;
    }
}

void Edit(QWidget* target, MenuRole role) {
    if (!CanEdit(target, role)) {
        return;
    }
    auto* const line = qobject_cast<QLineEdit*>(target);
    auto* const area = qobject_cast<QPlainTextEdit*>(target);
    switch (role) {
    case MenuRole::Cut:
        line != nullptr ? line->cut() : area->cut();
        break;
    case MenuRole::Copy:
        line != nullptr ? line->copy() : area->copy();
        break;
    case MenuRole::Paste:
        PressPaste(*target);
        break;
    case MenuRole::Clear:
        line != nullptr ? line->del() : area->textCursor().removeSelectedText();
        break;
    case MenuRole::SelectAll:
        line != nullptr ? line->selectAll() : area->selectAll();
        break;
    default:
        break;
    }
}

} // namespace tessarolyne

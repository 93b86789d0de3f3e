#include "desktop/ContextMenu.h"

#include "desktop/QtText.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QMenu>

namespace tessarolyne {

void OpenContextMenu(QMenu* menu, TextControl& control, const QContextMenuEvent& event) {
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto commands =
        control.ContextCommands ? control.ContextCommands() : std::vector<TextControl::Command>();
    if (!commands.empty()) {
        menu->addSeparator();
    }
    for (const TextControl::Command& command : commands) {
        QAction* const action = menu->addAction(LiteralCaption(command.Caption));
        QObject::connect(
            action, &QAction::triggered, menu, [&control, command] { control.UserChoseCommand(command); });
    }
    menu->popup(event.globalPos());
}

} // namespace tessarolyne

#pragma once

#include "platform/MenuBar.h"
#include "platform/TextControls.h"

class QContextMenuEvent;
class QMenu;
class QWidget;

namespace tessarolyne {

// Opens the edit's own context menu, with the control's commands at its end. Takes the menu.
void OpenContextMenu(QMenu* menu, TextControl& control, const QContextMenuEvent& event);

// The edit commands of the menu on the widget with the focus.
// Cut, Copy, Paste, Clear and SelectAll.
bool IsEditRole(MenuRole role);
// Whether the command would do something there now; never without a text.
bool CanEdit(const QWidget* target, MenuRole role);
void Edit(QWidget* target, MenuRole role);

} // namespace tessarolyne

#pragma once

#include "platform/TextControl.h"

class QContextMenuEvent;
class QMenu;

namespace tessarolyne {

// Opens the edit's own context menu, with the control's commands at its end. Takes the menu.
void OpenContextMenu(QMenu* menu, TextControl& control, const QContextMenuEvent& event);

} // namespace tessarolyne

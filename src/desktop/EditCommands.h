#pragma once

#include "platform/MenuBar.h"

class QWidget;

// The edit commands of the menu on the widget with the focus.
namespace tessarolyne {

// Cut, Copy, Paste, Clear and SelectAll.
bool IsEditRole(MenuRole role);
// Whether the command would do something there now; never without a text.
bool CanEdit(const QWidget* target, MenuRole role);
void Edit(QWidget* target, MenuRole role);

} // namespace tessarolyne

#pragma once

#include "platform/Application.h"

namespace tessarolyne {

// The program's menus: file, edit, help. What the items do is bound by the main window.
class MenuBar1 final : public MenuBar {
public:
    MenuBar1();
};

} // namespace tessarolyne

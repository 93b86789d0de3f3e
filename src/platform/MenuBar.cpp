#include "platform/MenuBar.h"

#include "platform/Application.h"
#include "platform/EventLoop.h"
#include "platform/Services.h"

namespace tessarolyne {

MenuItem::MenuItem(
    std::string name, std::string caption, std::string shortcut, bool autoEnable, MenuRole role)
    : Name(std::move(name)), KeyboardShortcut(std::move(shortcut)), AutoEnable(autoEnable), Role(role),
      Caption(std::move(caption)) {}

MenuItem& MenuItem::Append(
    std::string name, std::string caption, std::string shortcut, bool autoEnable, MenuRole role) {
    items_.push_back(std::make_unique<MenuItem>(
        std::move(name), std::move(caption), std::move(shortcut), autoEnable, role));
    return *items_.back();
}

void MenuItem::UserChose(Application& application) {
    application.EnableMenuItems();
    if (Role == MenuRole::Quit) {
        application.RequestQuit();
    } else if (!application.HasModalStep() && !application.GetServices().loop.IsWaiting()) {
        Action();
    }
}

MenuItem& MenuBar::AddMenu(std::string name, std::string caption) {
    menus_.push_back(
        std::make_unique<MenuItem>(std::move(name), std::move(caption), "", true, MenuRole::None));
    return *menus_.back();
}

MenuItem* MenuBar::Find(std::string_view name) const {
    for (const auto& menu : menus_) {
        if (menu->Name == name) {
            return menu.get();
        }
        for (const auto& item : menu->Items()) {
            if (item->Name == name) {
                return item.get();
            }
        }
    }
    return nullptr;
}

} // namespace tessarolyne

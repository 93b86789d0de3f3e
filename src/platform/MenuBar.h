#pragma once

#include "platform/Event.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tessarolyne {

class Application;

// What the framework does with an item by itself: the edit commands act on the text with the focus, the quit
// item asks the application to quit. Application items stand in the application's own menu where the platform
// has one, whatever menu they are listed in.
enum class MenuRole {
    None,
    Separator,
    Cut,
    Copy,
    Paste,
    Clear,
    SelectAll,
    Quit,
    About,
    Application,
    Preferences
};

// A menu, or an item in one. Without AutoEnable the program sets Enabled; with it the framework does.
class MenuItem {
public:
    MenuItem(std::string name, std::string caption, std::string shortcut, bool autoEnable, MenuRole role);

    MenuItem& Append(std::string name, std::string caption, std::string shortcut = {}, bool autoEnable = true,
        MenuRole role = MenuRole::None);
    const std::vector<std::unique_ptr<MenuItem>>& Items() const { return items_; }

    // What the user's choice or the item's shortcut does: the menus are brought up to date first. The quit
    // item asks the application; any other gives Action, which looks at Enabled itself, unless something
    // modal is up.
    void UserChose(Application& application);

    const std::string Name;
    const std::string KeyboardShortcut; // "Cmd+O"; empty for none
    const bool AutoEnable;
    const MenuRole Role;
    const std::string Caption;
    std::string AltKey; // the letter of the caption that chooses it while its menu is open
    bool Enabled = true;

    Event<bool()> Action;

private:
    std::vector<std::unique_ptr<MenuItem>> items_;
};

// The menus of the application, in their order.
class MenuBar {
public:
    virtual ~MenuBar() = default;

    MenuItem& AddMenu(std::string name, std::string caption);
    const std::vector<std::unique_ptr<MenuItem>>& Menus() const { return menus_; }
    // The first item of that name, in any menu; null if there is none.
    MenuItem* Find(std::string_view name) const;

private:
    std::vector<std::unique_ptr<MenuItem>> menus_;
};

} // namespace tessarolyne

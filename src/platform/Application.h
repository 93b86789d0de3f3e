#pragma once

#include "platform/Event.h"
#include "platform/Window.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tessarolyne {

class Application;
struct Services;

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
    MenuItem(std::string name, std::string caption, std::string altKey, std::string shortcut = {},
        bool autoEnable = true, MenuRole role = MenuRole::None)
        : Name(std::move(name)), Caption(std::move(caption)), AltKey(std::move(altKey)),
          KeyboardShortcut(std::move(shortcut)), AutoEnable(autoEnable), Role(role) {}

    template <typename... Told>
    MenuItem& Append(Told&&... told) {
        return *items_.emplace_back(std::make_unique<MenuItem>(std::forward<Told>(told)...));
    }
    const std::vector<std::unique_ptr<MenuItem>>& Items() const { return items_; }

    // What the user's choice or the item's shortcut does: the menus are brought up to date first. The quit
    // item asks the application; any other gives Action, which looks at Enabled itself, unless something
    // modal is up.
    void UserChose(Application& application);

    const std::string Name;
    const std::string Caption;
    const std::string AltKey;           // the letter of the caption that chooses it while its menu is open
    const std::string KeyboardShortcut; // "Cmd+O"; empty for none
    const bool AutoEnable;
    const MenuRole Role;
    bool Enabled = true;

    Event<bool()> Action;

private:
    std::vector<std::unique_ptr<MenuItem>> items_;
};

// The menus of the application, in their order.
class MenuBar {
public:
    virtual ~MenuBar() = default;

    MenuItem& AddMenu(std::string name, std::string caption, std::string altKey) {
        return *menus_.emplace_back(
            std::make_unique<MenuItem>(std::move(name), std::move(caption), std::move(altKey)));
    }
    const std::vector<std::unique_ptr<MenuItem>>& Menus() const { return menus_; }
    // The first item of that name, in any menu; null if there is none.
    MenuItem* Find(std::string_view name) const;

private:
    std::vector<std::unique_ptr<MenuItem>> menus_;
};

// The running application: its open windows, its menu bar, and the way out. The world's answers come through
// the services that it was made with.
class Application : public PropertyOwner {
public:
    explicit Application(Services& services) : services_(services) {}

    Services& GetServices() const { return services_; }

    // The windows that are alive, oldest first.
    const std::vector<Window*>& Windows() const { return windows_; }
    MenuBar* GetMenuBar() const { return menuBar_; }
    void UseMenuBar(MenuBar* menuBar) { menuBar_ = menuBar; }

    // Lets every window bring the menu items up to date; runs before a menu is shown or a shortcut obeyed.
    void EnableMenuItems();
    // What the user or the desktop asks for: Event_CancelClose(true) on every window; quits if none refuses.
    void RequestQuit();
    // While it lives nothing else of the program takes what the user does: only the window, or where it is
    // null a dialog that is none of the program's windows. Of several the youngest counts; they end in any
    // order.
    class ModalStep {
    public:
        ModalStep(Application& application, const Window* window);
        ~ModalStep();
        ModalStep(const ModalStep&) = delete;
        ModalStep& operator=(const ModalStep&) = delete;

    private:
        friend class Application;
        Application& application_;
        const Window* const window_;
    };
    bool HasModalStep() const { return !modalSteps_.empty(); }
    // Whether the window may take what the user does, now.
    bool LetsUserInto(const Window& window) const;

    // Ends the event loop and every modal loop inside it; asks nobody.
    void Quit(int exitCode);

    virtual void Event_Open() {}

    Property<Cursor> MouseCursor{*this, Cursor::None};
    Signal<> Changed;
    // Called with a window that has closed; whoever owns it lets it go, though not before its handlers
    // return.
    Event<void(Window&)> OnWindowClosed;

    // Windows that are shown now leave the keyboard where it is.
    bool ShowsQuietly() const { return showsQuietly_; }

private:
    friend class Window;
    friend class QuietShowing;
    void Add(Window& window) { windows_.push_back(&window); }
    void Remove(Window& window) { std::erase(windows_, &window); }
    void PropertyChanged(const void*) override { Changed(); }

    Services& services_;
    std::vector<Window*> windows_;
    std::vector<const ModalStep*> modalSteps_;
    MenuBar* menuBar_ = nullptr;
    bool showsQuietly_ = false;
};

// For as long as it lives, windows of the application come up without taking the keyboard.
class QuietShowing {
public:
    explicit QuietShowing(Application& application) : application_(application) {
        application_.showsQuietly_ = true;
    }
    ~QuietShowing() { application_.showsQuietly_ = false; }
    QuietShowing(const QuietShowing&) = delete;
    QuietShowing& operator=(const QuietShowing&) = delete;

private:
    Application& application_;
};

} // namespace tessarolyne

#pragma once

#include "ui/App.h"
#include "ui/Fncts.h"

#include <memory>
#include <string>
#include <vector>

namespace tessarolyne {

class MenuBar;
class WinChargSauvNb1ers;
class WinInfos;
class WinMain;
class WinNbresPremiers;
class WinPrefs;
struct Services;

// One run of the program, with which each of its windows is made: the application object and the module
// Fncts, and the way to the other windows' one instances, each made at its first use. A second Program knows
// nothing of the first.
class Program {
public:
    // `versionFileUrl` is where the update check asks; the build's own address if none is given.
    explicit Program(Services& world);
    Program(Services& world, std::string versionFileUrl);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    // Does all that comes before the event loop is idle: App's Open, then the main window with its own.
    void Start();
    // The way out when nobody can be asked: a signal, or the end of the desktop session. Stops a running
    // calculation, saves what there is to save, and ends the event loop.
    void EndWithoutAsking();

    WinMain& winMain();
    WinNbresPremiers& winNbresPremiers();
    // Exists while a prime file is read or written.
    WinChargSauvNb1ers& winChargSauvNb1ers();
    bool HasWinChargSauvNb1ers() const { return winChargSauvNb1ers_ != nullptr; }
    WinInfos& winInfos();
    WinPrefs& winPrefs();

    Services& services;
    const std::string versionFile;
    Fncts fncts;
    App app;

private:
    void LetGo(Window& window);

    template <typename WindowClass, typename... Parts>
    WindowClass& Instance(std::unique_ptr<WindowClass>& window, Parts&... parts);

    bool ending_ = false;
    std::unique_ptr<MenuBar> menuBar_;
    std::unique_ptr<WinMain> winMain_;
    std::unique_ptr<WinNbresPremiers> winNbresPremiers_;
    std::unique_ptr<WinChargSauvNb1ers> winChargSauvNb1ers_;
    std::unique_ptr<WinInfos> winInfos_;
    std::unique_ptr<WinPrefs> winPrefs_;
    std::vector<std::unique_ptr<Window>> closed_; // until their handlers have returned
};

} // namespace tessarolyne

#pragma once

#include "ui/Program.h"

#include <memory>
#include <string>
#include <vector>

namespace tessarolyne {

class MenuBar;

// One run of the program, which makes its windows. A second one knows nothing of the first.
class ProgramRun final : public Program {
public:
    // `versionFileUrl` is where the update check asks; the build's own address if none is given.
    explicit ProgramRun(Services& world);
    ProgramRun(Services& world, std::string versionFileUrl);
    ~ProgramRun();

    // Does all that comes before the event loop is idle: App's Open, then the main window with its own.
    void Start();
    // The way out when nobody can be asked: a signal, or the end of the desktop session. Stops a running
    // calculation, saves what there is to save, and ends the event loop.
    void EndWithoutAsking();

    WinMain& winMain() override;
    WinNbresPremiers& winNbresPremiers() override;
    WinChargSauvNb1ers& winChargSauvNb1ers() override;
    bool HasWinChargSauvNb1ers() const override { return winChargSauvNb1ers_ != nullptr; }
    WinInfos& winInfos() override;
    WinPrefs& winPrefs() override;

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

#include "ui/Program.h"

#include "conversion/MenuBar1.h"
#include "conversion/WinMain.h"
#include "platform/EventLoop.h"
#include "platform/Services.h"
#include "primes/WinChargSauvNb1ers.h"
#include "primes/WinNbresPremiers.h"
#include "ui/Version.h"
#include "ui/WinInfos.h"
#include "ui/WinPrefs.h"

#include <utility>

namespace tessarolyne {

Program::Program(Services& world) : Program(world, versionFileAddress) {}

Program::Program(Services& world, std::string versionFileUrl)
    : services(world), versionFile(std::move(versionFileUrl)), fncts(app, world), app(*this, world),
      menuBar_(std::make_unique<MenuBar1>()) {
    app.UseMenuBar(menuBar_.get());
    app.OnWindowClosed = [this](Window& window) { LetGo(window); };
}

// A thread that still computes looks at the flag; the windows' destructors wait for it.
Program::~Program() {
    fncts.ArretUrg = true;
}

// The instance is in its place before its Open event, which speaks to other windows and they to it.
template <typename WindowClass, typename... Parts>
WindowClass& Program::Instance(std::unique_ptr<WindowClass>& window, Parts&... parts) {
    if (!window) {
        window = std::make_unique<WindowClass>(*this, parts...);
        window->Event_Open();
    }
    return *window;
}

WinMain& Program::winMain() {
    return Instance(winMain_);
}

WinNbresPremiers& Program::winNbresPremiers() {
    WinMain& main = winMain();
    return Instance(winNbresPremiers_, main.primeFile, main.calculation, main, main.CheckBoxFormatAuto,
        main.BevelButtonListe);
}

WinChargSauvNb1ers& Program::winChargSauvNb1ers() {
    return Instance(winChargSauvNb1ers_, winMain().primeFile, winMain());
}

WinInfos& Program::winInfos() {
    return Instance(winInfos_);
}

WinPrefs& Program::winPrefs() {
    return Instance(winPrefs_, winMain());
}

void Program::Start() {
    app.Event_Open();
    winMain();
}

void Program::EndWithoutAsking() {
    if (ending_) {
        return; // a second signal, while the first waits for a calculation to stop
    }
    ending_ = true;
    fncts.ArretUrg = true;
    if (winMain_) {
        winMain_->quitting.SaveWithoutAsking();
    }
    app.Quit(0);
}

// A window closes in its own handlers: it is destroyed once they have returned.
void Program::LetGo(Window& window) {
    const auto release = [&](auto& instance) {
        if (instance.get() == &window) {
            closed_.push_back(std::move(instance));
        }
    };
    release(winNbresPremiers_);
    release(winChargSauvNb1ers_);
    release(winInfos_);
    release(winPrefs_);
    if (!app.DrapOkQuit) { // else a dialog of theirs may still stand over the quit: they end with the program
        services.loop.Post([this] { closed_.clear(); });
    }
}

} // namespace tessarolyne

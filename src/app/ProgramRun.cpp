#include "app/ProgramRun.h"

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

ProgramRun::ProgramRun(Services& world) : ProgramRun(world, versionFileAddress) {}

ProgramRun::ProgramRun(Services& world, std::string versionFileUrl)
    : Program(world, std::move(versionFileUrl)), menuBar_(std::make_unique<MenuBar1>()) {
    app.UseMenuBar(menuBar_.get());
    app.OnWindowClosed = [this](Window& window) { LetGo(window); };
}

// A thread that still computes looks at the flag; the windows' destructors wait for it.
ProgramRun::~ProgramRun() {
    fncts.ArretUrg = true;
}

// The instance is stored before its Open event, in which it and other windows ask for each other.
template <typename WindowClass, typename... Parts>
WindowClass& ProgramRun::Instance(std::unique_ptr<WindowClass>& window, Parts&... parts) {
    if (!window) {
        window = std::make_unique<WindowClass>(*this, parts...);
        window->Event_Open();
    }
    return *window;
}

WinMain& ProgramRun::winMain() {
    return Instance(winMain_);
}

WinNbresPremiers& ProgramRun::winNbresPremiers() {
    WinMain& main = winMain();
    return Instance(winNbresPremiers_, main.primeFile, main.calculation, main, main.CheckBoxFormatAuto,
        main.BevelButtonListe);
}

WinChargSauvNb1ers& ProgramRun::winChargSauvNb1ers() {
    return Instance(winChargSauvNb1ers_, winMain().primeFile, winMain());
}

WinInfos& ProgramRun::winInfos() {
    return Instance(winInfos_);
}

WinPrefs& ProgramRun::winPrefs() {
    return Instance(winPrefs_, winMain());
}

void ProgramRun::Start() {
    app.Event_Open();
    winMain();
}

void ProgramRun::EndWithoutAsking() {
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
void ProgramRun::LetGo(Window& window) {
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

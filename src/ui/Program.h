#pragma once

#include "platform/Application.h"
#include "platform/FolderItem.h"
#include "platform/Services.h"
#include "ui/Fncts.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessarolyne {

struct Preferences;
class Program;

// The application object: the settings that have no control, and the two flags of its life. The settings are
// read once at the start and written once at the end; in between they live here and in the controls.
class App final : public Application {
public:
    App(Program& program, Services& services);

    void Event_Open() override;

    // Takes defaults and the preferences file into the properties here and the main window's controls. True
    // if the preferences could not be had: no file, or one that can't be read to its end.
    bool PrefsCharger();
    // Writes the preferences file. `listeVisible` says whether the prime list window is open; `quietly`, for
    // when nobody can be asked, that a failure is not told.
    void PrefsSauver(bool listeVisible, bool quietly = false);

    // The version as users see it, without "v.".
    const std::string ShortVersion;

    bool initProg = false;                 // the start is over, handlers may react
    bool DrapOkQuit = false;               // all questions are answered, the program may end
    std::optional<FolderItem> DossierPref; // folder of the preferences file
    std::optional<FolderItem> FichNbPrems; // the bound prime file
    bool QuitAsked = false;                // by a key or the desktop; each load of the prime file forgets it
    Date DateDuJour;                       // this launch
    Date DateDerLaunch;                    // the launch before this one
    bool AutoCheckUpdt = false;            // look for a new version once a day
    bool DejaDonne = false;                // the donation prompt is settled
    std::array<std::int16_t, 4> WinNBP{};  // left, top, width, height of the prime list window

private:
    template <class Copy>
    void CopySettings(Preferences& preferences, const Copy& copy);
    void Apply(Preferences& preferences);
    Preferences Gather(bool listeVisible);
    void KeepOthersBinding(Preferences& preferences) const;
    void PlaceMainWindow(int left, int top);
    void ChooseLanguage(const std::string& code);

    Program& program_;
    std::optional<FolderItem> boundAtStart_;
    std::string boundAtStartText_;    // the same as the preferences file had it
    bool prefsReadingFailed_ = false; // the old file is kept beside when it is replaced
};

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

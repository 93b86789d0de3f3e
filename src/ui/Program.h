#pragma once

#include "platform/Application.h"
#include "platform/FolderItem.h"
#include "platform/Services.h"
#include "ui/Fncts.h"
#include "ui/Version.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace tessarolyne {

// The application object: the settings that have no control, and the flags of its life. The settings are
// read once at the start and written once at the end; in between they live here and in the controls.
class App final : public Application {
public:
    App(Fncts& fncts, Services& services) : Application(services), fncts_(fncts) {}

    void Event_Open() override { fncts_.DefAppEncod = "UTF-8"; }

    // The version as users see it, without "v.".
    const std::string ShortVersion = shortVersion;

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
    Fncts& fncts_;
};

class WinChargSauvNb1ers;
class WinInfos;
class WinMain;
class WinNbresPremiers;
class WinPrefs;

// What a window knows of the program that it is part of: the application object and the module Fncts, and
// the way to the other windows' one instances, each made at its first use.
class Program {
public:
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    virtual WinMain& winMain() = 0;
    virtual WinNbresPremiers& winNbresPremiers() = 0;
    // Exists while a prime file is read or written.
    virtual WinChargSauvNb1ers& winChargSauvNb1ers() = 0;
    virtual bool HasWinChargSauvNb1ers() const = 0;
    virtual WinInfos& winInfos() = 0;
    virtual WinPrefs& winPrefs() = 0;

    Services& services;
    const std::string versionFile;
    Fncts fncts;
    App app;

protected:
    Program(Services& world, std::string versionFileUrl)
        : services(world), versionFile(std::move(versionFileUrl)), fncts(app, world), app(fncts, world) {}
    ~Program() = default;
};

} // namespace tessarolyne

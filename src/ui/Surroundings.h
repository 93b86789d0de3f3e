#pragma once

#include <string>
#include <utility>

namespace tessarolyne {

class App;
class Fncts;
struct Services;
class WinChargSauvNb1ers;
class WinInfos;
class WinMain;
class WinNbresPremiers;
class WinPrefs;

// What a window of the program is made with: what all share, and the way to the other windows' one instances,
// each made at its first use.
class Surroundings {
public:
    virtual ~Surroundings() = default;
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;

    virtual WinMain& winMain() = 0;
    virtual WinNbresPremiers& winNbresPremiers() = 0;
    // Exists while a prime file is read or written.
    virtual WinChargSauvNb1ers& winChargSauvNb1ers() = 0;
    virtual bool HasWinChargSauvNb1ers() const = 0;
    virtual WinInfos& winInfos() = 0;
    virtual WinPrefs& winPrefs() = 0;

    Services& services;
    Fncts& fncts;
    App& app;
    const std::string versionFile;

protected:
    Surroundings(Services& world, Fncts& shared, App& application, std::string versionFileUrl)
        : services(world), fncts(shared), app(application), versionFile(std::move(versionFileUrl)) {}
};

} // namespace tessarolyne

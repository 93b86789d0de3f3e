#pragma once

#include "platform/FolderItem.h"

#include <optional>
#include <string>

namespace tessarolyne {

class App;
class Fncts;
class WinMain;
struct Preferences;

// The way of the settings between the preferences file and where they live in a run: App's properties and the
// main window's controls.
class Settings {
public:
    Settings(WinMain& window, App& app, Fncts& fncts);

    // Takes defaults and the preferences file into the properties and controls. True if the preferences could
    // not be had: no file, or one that can't be read to its end.
    bool PrefsCharger();
    // Writes the preferences file. `listeVisible` says whether the prime list window is open; `quietly`, for
    // when nobody can be asked, that a failure is not told.
    void PrefsSauver(bool listeVisible, bool quietly = false);

private:
    template <class Copy>
    void CopySettings(Preferences& preferences, const Copy& copy);
    void Apply(Preferences& preferences);
    Preferences Gather(bool listeVisible);
    void KeepOthersBinding(Preferences& preferences) const;
    void PlaceMainWindow(int left, int top);
    void ChooseLanguage(const std::string& code);

    WinMain& window_;
    App& app_;
    Fncts& fncts_;
    std::optional<FolderItem> boundAtStart_;
    std::string boundAtStartText_;    // the same as the preferences file had it
    bool prefsReadingFailed_ = false; // the old file is kept beside when it is replaced
};

} // namespace tessarolyne

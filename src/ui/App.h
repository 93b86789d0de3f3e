#pragma once

#include "platform/Application.h"
#include "platform/Date.h"
#include "platform/FolderItem.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

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

} // namespace tessarolyne

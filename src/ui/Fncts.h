#pragma once

#include "platform/FolderItem.h"
#include "platform/Services.h"

#include <atomic>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarolyne {

class Application;
struct Services;
class Window;

// A kind of file that the program opens and saves, by the name that file dialogs are given as their filter.
struct FileType {
    std::string_view Name;
    std::string_view Extensions; // with the dot
};
namespace FileTypes {
inline constexpr FileType QueText{"text", ".txt"};
}

// The flags and small services that all windows share: questions and messages, beeps and sounds, the
// clipboard, and the freezing of commands while something else goes on.
class Fncts {
public:
    Fncts(Application& app, Services& services) : app_(app), services_(services) {}

    // Commands may be used: no calculation, dialog, load or save is under way.
    bool DrapMenu = false;
    // Every running calculation stops at its next look. Raised by the main thread and by a time limit, read
    // by whichever thread computes.
    std::atomic<bool> ArretUrg = false;
    // One of the dialogs below is up.
    bool DrapDiagBox = false;
    // Results are announced to screen readers.
    bool Annonces = true;
    // The encoding of all text files that the program reads and writes.
    std::string DefAppEncod;

    // What a copy button plays, and what a stop does.
    Sound Bip{"Bip.wav"};
    Sound Zoum{"Zoum.wav"};

    // Asks, and gives 1 for the action button, 2 for cancel, 3 for the alternate button, 0 for no answer. An
    // empty caption means no such button. `icone` is 0 for a note and 1 for a warning.
    int MyDialogBox(const std::string& message, const std::string& explication,
        const std::string& boutonAction, const std::string& boutonAnnuler, const std::string& boutonAutre,
        int icone, Window* fenetre, const DialogHelpTags& bulles = {});
    // Beeps, and tells what is wrong, with one button.
    void Warn(const std::string& message, const std::string& bouton, const std::string& explication = "");
    // The same for two results that should agree and don't: once, until others don't. `last` remembers them;
    // true if it was told.
    bool WarnOfMismatch(std::string& last, const std::string& results, const std::string& message);

    // Hands an address to the desktop without waiting. One that isn't safe to hand on, or that nothing takes,
    // is shown to the user instead, to copy or not.
    void ShowURL(const std::string& adresse);

    // Choosers of an existing file, and of a file to save. They begin in `depart` if it is a folder, else in
    // its parent, else in the user's documents; a save suggests the name of a `depart` that is no folder,
    // else `nomPropose`. Nil when the user cancels. A chosen alias comes as itself.
    std::optional<FolderItem> MyDialogLoad(const std::optional<FolderItem>& depart, const std::string& invite,
        const FileType& filtre, Window* fenetre);
    std::optional<FolderItem> MyDialogSave(const std::optional<FolderItem>& depart, const std::string& invite,
        const FileType& filtre, const std::string& nomPropose, Window* fenetre);

    // Shows a fixed English diagnostic.
    void MsgBox(const std::string& texte);
    // Shows that the program itself is at fault, and where: at `place`. The two differ in their first line,
    // which the second breaks.
    void ReportFault(const std::string& place);
    void ReportFaultInLines(const std::string& place);

    // Has a screen reader speak `texte`, short and plain, at once and wherever the focus is: for what it
    // would not come upon by itself. Nothing for an empty text, without a screen reader, or where the user
    // has switched that off. Main thread only.
    void Announce(const std::string& texte);
    // The system's alert sound.
    void Beep();
    // `nombre` beeps, ten ticks apart; none for 0 or less.
    void BeepNbT(int nombre);
    // Waits that many ticks. `doEvents` is a fault of the caller.
    void Pause(int ticks, bool doEvents);
    // Plays the sound, also when it is playing already; with `attendre` returns when it has ended.
    void PlayT(Sound& son, bool attendre);
    // Puts the text on the clipboard.
    void PressPapTxt(const std::string& texte);

    // What the program was built for and with.
    static std::string TypeCompil();

    // The `partie`-th piece, from 1, of a text cut at its "¿%" marks. A piece that isn't there is reported,
    // and empty.
    std::string FracTexte(const std::string& texte, int partie);
    // The text with the values at its marks.
    std::string Filled(const std::string& texte, const std::vector<std::string>& values);

    // Covers (or with `montrer` false uncovers) all visible windows but `fenetre` with their overlays. True
    // if they were covered, that is if `fenetre` can hold a sheet.
    bool CtrlDsFenetrDiag(Window* fenetre, bool montrer);

    // Moves each control of the window by the few points that its class needs to line up with the others.
    static void DecPosCtrl(Window& fenetre);

    // Takes DrapMenu down for a calculation on a thread, or gives it back.
    void HoldMenuForCalculation(bool hold);
    // Gives DrapMenu the value that was found before; never true while a calculation keeps it down.
    void RestoreDrapMenu(bool found);
    // Puts the text on the clipboard, with the sound and the announcement that say so.
    void CopyToClipboard(const std::string& texte);

private:
    class DialogProtocol;

    std::optional<FolderItem> ChooseItem(const std::optional<FolderItem>& depart, const std::string& invite,
        const FileType& filtre, const std::string& nomPropose, Window* fenetre, bool toSave);

    Application& app_;
    Services& services_;
    bool calculationHoldsMenu_ = false;
};

} // namespace tessarolyne

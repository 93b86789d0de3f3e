#pragma once

#include "platform/Controls.h"
#include "platform/FolderItem.h"
#include "primes/engine/PrimeFile.h"
#include "ui/BlockingOverlay.h"
#include "ui/ProgramWindow.h"

#include <cstdint>

namespace tessarolyne {

class PrimeFileBinding;

// Shows how far the prime file is read or written, and does the one or the other: it lives for one operation,
// which opens it, reports what went wrong, and closes it. While it is up it is drawn, and only the end of the
// program stops a reading. It shows at once and long enough to be seen, since the user asked for it; while
// the application shows quietly (QuietShowing), only once the operation has taken that long.
class WinChargSauvNb1ers final : public ModalWindow, private PrimeFileProgress {
public:
    WinChargSauvNb1ers(Program& owner, PrimeFileBinding& primeFile, const Window& mainWindow);

    Label StaticTextFormNbre{*this, "StaticTextFormNbre", {20, 7, 360, 20}, lockLeftTop, NoTabStop(0)};
    ProgressBar ProgressBarNb1ers{*this, "ProgressBarNb1ers", {20, 39, 360, 13}, lockLeftTop, NoTabStop(1)};
    BlockingOverlay LabBlockUI{*this, fncts, NoTabStop(2)};

    // Reads the bound file into the table. With none, or one that is no good, the table stays what it is, and
    // 2, 3, 5, 7 if it was empty. A file without primes is overwritten if the user says so, or let go of.
    void LoadNb1ers();
    // Writes the table to the bound file, unless that has changed and would lose by it. A file that the user
    // has just chosen takes the place of a link with ReplaceLink; a file that has been bound for long stays
    // what it is.
    void SaveNb1ers(LinkPolicy links = LinkPolicy::ReplaceTarget);

    void Event_Open() override;

private:
    void Expect(std::int64_t maximum) override;
    void Reach(std::int64_t index) override;
    void Work() override;
    bool MustStop() override;

    void Start(const std::string& title);
    void End();
    void Draw();
    void LoadBoundFile();
    void CountAsSaved();
    bool UserOverwrites();
    void Reset();
    void Save(LinkPolicy links);
    bool MayReplace();
    std::uint64_t MemoryForTable() const;
    void Write(LinkPolicy links);
    void CommitWhileDrawing(OutputFile& file);
    void TellFailure(int beeps, const std::string& message);

    PrimeFileBinding& primeFile_;
    const Window& mainWindow_;  // a close of it stops a reading
    std::int64_t deadline_ = 0; // in ticks, when the window has been up long enough to be seen
    std::int64_t drawn_ = 0;    // in ticks, when it was drawn last
    std::int64_t answered_ = 0; // when the window manager was last answered, in ticks
};

} // namespace tessarolyne

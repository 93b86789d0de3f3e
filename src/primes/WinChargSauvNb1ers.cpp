#include "primes/WinChargSauvNb1ers.h"

#include "platform/EventLoop.h"
#include "primes/PrimeFileBinding.h"
#include "ui/FileItems.h"
#include "ui/Localisation.h"

#include <future>

namespace tessarolyne {

namespace {

constexpr std::int64_t ticksBetweenAnswers = 6;

// The program takes no input while the window is up, and its main window must be there to be closed.
constexpr WindowFrame frame{.kind = WindowFrame::Kind::MovableModal,
    .closeButton = false,
    .minimizeButton = false,
    .blocksOthers = false};
constexpr int ticksToBeSeen = 6;

} // namespace

WinChargSauvNb1ers::WinChargSauvNb1ers(Program& owner, PrimeFileBinding& primeFile, const Window& mainWindow)
    : ModalWindow(owner, "… Lect/Sauv Nombres Premiers …", 400, 72, frame), primeFile_(primeFile),
      mainWindow_(mainWindow) {
    StaticTextFormNbre.Text = Localisation::StTextFormNbre();
    ExplainControls();
}

void WinChargSauvNb1ers::Event_Open() {
    LabBlockUI.Open();
    Fncts::DecPosCtrl(*this);
    OpenModal();
}

void WinChargSauvNb1ers::Start(const std::string& title) {
    Title = title;
    drawn_ = program.services.clock.Ticks();
    deadline_ = drawn_ + ticksToBeSeen;
    if (!app.ShowsQuietly()) {
        Show();
    }
}

void WinChargSauvNb1ers::End() {
    DrapMovableModal = false;
    if (Visible) {
        program.services.loop.WaitUntil([this] { return program.services.clock.Ticks() >= deadline_; });
    }
    program.services.loop.DropInput(); // what was meant for the windows behind this one
    EndModal();
}

void WinChargSauvNb1ers::Expect(std::int64_t maximum) {
    ProgressBarNb1ers.Maximum = maximum;
}

// Beyond the maximum the bar is full and stays so; with a header that is far too low, drawing it at every
// step would take longer than the file.
void WinChargSauvNb1ers::Reach(std::int64_t index) {
    ProgressBarNb1ers.Value = index;
    if (index <= ProgressBarNb1ers.Maximum) {
        Draw();
    }
}

// Keeps the window alive where no step comes: on a line without numbers, or below a header that is too high.
void WinChargSauvNb1ers::Work() {
    if (program.services.clock.Ticks() > drawn_) {
        Draw();
    }
}

bool WinChargSauvNb1ers::MustStop() {
    return program.services.loop.IsQuitting() || mainWindow_.CloseIsDue() || app.QuitAsked;
}

void WinChargSauvNb1ers::Draw() {
    drawn_ = program.services.clock.Ticks();
    if (!Visible && drawn_ >= deadline_) {
        Show();
    }
    Refresh();
    if (drawn_ >= answered_ + ticksBetweenAnswers) {
        answered_ = drawn_;
        program.services.loop.DropInput();
    }
}

// What was typed until now was meant for other windows and must not answer.
void WinChargSauvNb1ers::TellFailure(int beeps, const std::string& message) {
    fncts.BeepNbT(beeps);
    program.services.loop.DropInput();
    fncts.MyDialogBox(message, "", Localisation::Btn_Ok(), "", "", 1, nullptr);
}

void WinChargSauvNb1ers::LoadNb1ers() {
    Start(Localisation::WinChargNb1ersTitre());
    if (primeFile_.Nbres_Premiers.Size() == 0) {
        Reset();
    }
    primeFile_.Nb_NbrePcharg = 0;
    primeFile_.PrimeFile = {};
    app.QuitAsked = false;
    if (PasNil_Existe_Alias(app.FichNbPrems, true)) {
        LoadBoundFile();
    }
    End();
}

void WinChargSauvNb1ers::LoadBoundFile() {
    BoundFile& bound = primeFile_.PrimeFile;
    PrimeTable read;
    PrimeFileContent content{};
    bound.isForeign = true; // until it turns out to be ours
    try {
        bound.seen = app.FichNbPrems->Stamp();
        const auto file = app.FichNbPrems->Files().OpenForReading(app.FichNbPrems->NativePath());
        bound.seen = file->Stamp();
        if (bound.seen->size > largestPrimeFile) {
            TellFailure(1, Localisation::Txt_FichTropGrand());
            return;
        }
        content = ReadPrimeFile(*file, read, *this, MemoryForTable());
    } catch (const ReadingStopped&) {
        Reset();
        return;
    } catch (const std::exception&) {
        read.Clear();
        TellFailure(1, Localisation::Txt_ErreurLectFich());
        return;
    }
    bound.isForeign = content == PrimeFileContent::Other;
    if (content == PrimeFileContent::Primes) {
        primeFile_.Nbres_Premiers.Swap(read);
        CountAsSaved();
    } else if (bound.isForeign && UserOverwrites()) {
        Save(LinkPolicy::ReplaceTarget);
    }
}

// Half of what there is, as for a calculation. The table that stays until another has been read counts as
// taken.
std::uint64_t WinChargSauvNb1ers::MemoryForTable() const {
    return program.services.memory.AvailableBytes() / 2;
}

// Whether the table may take the place of a file that holds something else. On the answer that it may not,
// the file is let go of.
bool WinChargSauvNb1ers::UserOverwrites() {
    fncts.Beep();
    program.services.loop.DropInput();
    const int answer =
        fncts.MyDialogBox(Localisation::Txt_CeFichContPasNb1er(), Localisation::Txt_CeciEffSonCont(),
            Localisation::Btn_Enreg(), Localisation::Btn_NePasEnreg(), "", 0, nullptr);
    if (answer == 2) {
        app.FichNbPrems.reset();
        primeFile_.PrimeFile = {};
    }
    return answer == 1;
}

void WinChargSauvNb1ers::Reset() {
    PrimeTable& table = primeFile_.Nbres_Premiers;
    table.Clear();
    for (const std::uint64_t prime : {2U, 3U, 5U, 7U}) {
        if (!table.Append(prime)) {
            break;
        }
    }
}

void WinChargSauvNb1ers::SaveNb1ers(LinkPolicy links) {
    Start(Localisation::WinSauvNb1ersTitre());
    Save(links);
    End();
}

void WinChargSauvNb1ers::Save(LinkPolicy links) {
    Title = Localisation::WinSauvNb1ersTitre();
    if (app.FichNbPrems && !MayReplace()) {
        return;
    }
    // Before the first byte: a save that failed and was reported isn't offered again.
    CountAsSaved();
    try {
        Write(links);
    } catch (const std::exception&) {
        TellFailure(3, Localisation::Txt_ErreurEcritFich());
    }
}

void WinChargSauvNb1ers::CountAsSaved() {
    primeFile_.Nb_NbrePcharg = static_cast<std::uint32_t>(primeFile_.Nbres_Premiers.Size());
}

// False, and the user knows why, if the file has changed since it was seen and is worth more than the table.
bool WinChargSauvNb1ers::MayReplace() {
    switch (LookBeforeSaving(
        *app.FichNbPrems, primeFile_.PrimeFile, primeFile_.Nbres_Premiers, MemoryForTable(), *this)) {
    case UnseenContent::None:
        return true;
    case UnseenContent::MorePrimes:
        TellFailure(1, Localisation::Txt_FichAPlusDeNb1ers());
        CountAsSaved(); // what there is here, there is in the file
        return false;
    case UnseenContent::Other:
        return UserOverwrites();
    case UnseenContent::Unreadable:
        TellFailure(1, Localisation::Txt_ErreurLectFich());
        return false;
    }
    return false;
}

void WinChargSauvNb1ers::Write(LinkPolicy links) {
    if (!app.FichNbPrems) {
        throw IOException("no file is bound");
    }
    const auto file = app.FichNbPrems->Files().CreateSafely(app.FichNbPrems->NativePath(), links);
    WritePrimeFile(primeFile_.Nbres_Premiers, Localisation::Txt_NbreDeNbPrem(), primeFile_.NbreNbPparLigne,
        *file, *this);
    CommitWhileDrawing(*file);
    primeFile_.PrimeFile = {app.FichNbPrems->Stamp(), false};
}

// The disk may need seconds, in which the window must not look dead.
void WinChargSauvNb1ers::CommitWhileDrawing(OutputFile& file) {
    auto commit = std::async(std::launch::async, [&file] { file.Commit(); });
    program.services.loop.WaitUntil(
        [&commit] { return commit.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
    commit.get();
}

} // namespace tessarolyne

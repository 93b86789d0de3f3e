#include "primes/WinChargSauvNb1ers.h"

#include "app/Program.h"
#include "conversion/WinMain.h"
#include "platform/Clock.h"
#include "platform/EventLoop.h"
#include "platform/IOException.h"
#include "platform/MemoryLimits.h"
#include "platform/Services.h"
#include "ui/FileItems.h"
#include "ui/Localisation.h"

#include <atomic>
#include <exception>
#include <thread>
#include <utility>

namespace tessarolyne {

namespace {

constexpr std::int64_t ticksBetweenAnswers = 6;

constexpr WindowFrame frame{
    .kind = WindowFrame::Kind::MovableModal, .closeButton = false, .minimizeButton = false};
constexpr int ticksToBeSeen = 6;

} // namespace

WinChargSauvNb1ers::WinChargSauvNb1ers(Program& owner)
    : ModalWindow(owner, "… Lect/Sauv Nombres Premiers …", 400, 72, frame) {
    StaticTextFormNbre.Text = Localisation::StTextFormNbre();
}

void WinChargSauvNb1ers::Event_Open() {
    LabBlockUI.Open();
    Fncts::DecPosCtrl(*this);
    OpenModal();
}

bool WinChargSauvNb1ers::Event_CancelClose(bool) {
    return RefuseClose();
}

void WinChargSauvNb1ers::Start(const std::string& title) {
    Title = title;
    Show();
    drawn_ = program.services.clock.Ticks();
    deadline_ = drawn_ + ticksToBeSeen;
}

void WinChargSauvNb1ers::End() {
    DrapMovableModal = false;
    program.services.loop.WaitUntil([this] { return program.services.clock.Ticks() >= deadline_; });
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

void WinChargSauvNb1ers::Draw() {
    drawn_ = program.services.clock.Ticks();
    UpdateNow();
    if (drawn_ >= answered_ + ticksBetweenAnswers) {
        answered_ = drawn_;
        bool once = false; // one round of events without the user's: the window is exposed, and answers pings
        program.services.loop.WaitUntil([&once] { return std::exchange(once, true); });
    }
}

void WinChargSauvNb1ers::TellFailure(int beeps, const std::string& message) {
    fncts.BeepNbT(beeps);
    fncts.MyDialogBox(message, "", Localisation::Btn_Ok(), "", "", 1, nullptr);
}

void WinChargSauvNb1ers::LoadNb1ers() {
    Start(Localisation::WinChargNb1ersTitre());
    if (!PasNil_Existe_Alias(app.FichNbPrems, true) || !ReadBoundFile()) {
        Reset();
    }
    End();
}

// False, all reported, if the table has to be reset.
bool WinChargSauvNb1ers::ReadBoundFile() {
    PrimeTable& table = program.winMain().Nbres_Premiers;
    try {
        table.Clear();
        const auto file = app.FichNbPrems->Files().OpenForReading(app.FichNbPrems->NativePath());
        // Half of what there is, as for a calculation.
        ReadPrimeFile(*file, table, *this, program.services.memory.AvailableBytes() / 2);
        switch (StartOf(table)) {
        case TableStart::Primes:
            program.winMain().Nb_NbrePcharg = static_cast<std::uint32_t>(table.Size());
            return true;
        case TableStart::Short:
            TellFailure(1, Localisation::Txt_ErreurLectFich());
            break;
        case TableStart::Other:
            AskAboutOtherFile();
            break;
        case TableStart::Empty:
            break;
        }
    } catch (const std::exception&) {
        TellFailure(1, Localisation::Txt_ErreurLectFich());
    }
    return false;
}

void WinChargSauvNb1ers::AskAboutOtherFile() {
    fncts.Beep();
    const int answer =
        fncts.MyDialogBox(Localisation::Txt_CeFichContPasNb1er(), Localisation::Txt_CeciEffSonCont(),
            Localisation::Btn_Enreg(), Localisation::Btn_NePasEnreg(), "", 0, nullptr);
    if (answer == 2) {
        app.FichNbPrems.reset();
    }
}

void WinChargSauvNb1ers::Reset() {
    PrimeTable& table = program.winMain().Nbres_Premiers;
    table.Clear();
    for (const std::uint64_t prime : {2U, 3U, 5U, 7U}) {
        if (!table.Append(prime)) {
            break;
        }
    }
    program.winMain().Nb_NbrePcharg = 0;
}

void WinChargSauvNb1ers::SaveNb1ers(LinkPolicy links) {
    Start(Localisation::WinSauvNb1ersTitre());
    const PrimeTable& table = program.winMain().Nbres_Premiers;
    // Before the first byte: a save that failed and was reported isn't offered again.
    program.winMain().Nb_NbrePcharg = static_cast<std::uint32_t>(table.Size());
    try {
        Write(links);
    } catch (const std::exception&) {
        TellFailure(3, Localisation::Txt_ErreurEcritFich());
    }
    End();
}

void WinChargSauvNb1ers::Write(LinkPolicy links) {
    if (!app.FichNbPrems) {
        throw IOException("no file is bound");
    }
    const WinMain& main = program.winMain();
    const auto file = app.FichNbPrems->Files().CreateSafely(app.FichNbPrems->NativePath(), links);
    WritePrimeFile(main.Nbres_Premiers, Localisation::Txt_NbreDeNbPrem(), main.NbreNbPparLigne, *file, *this);
    CommitWhileDrawing(*file);
}

// The disk may need seconds, in which the window must not look dead.
void WinChargSauvNb1ers::CommitWhileDrawing(OutputFile& file) {
    std::exception_ptr failure;
    std::atomic<bool> done = false;
    {
        const std::jthread commit([&] {
            try {
                file.Commit();
            } catch (...) {
                failure = std::current_exception();
            }
            done = true;
        });
        program.services.loop.WaitUntil([&done] { return done.load(); });
    }
    if (failure) {
        std::rethrow_exception(failure);
    }
}

} // namespace tessarolyne

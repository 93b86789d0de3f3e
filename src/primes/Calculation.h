#pragma once

#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "primes/engine/RunControl.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessarolyne {

class CheckBox;
class Desktop;
class EventLoop;
class Label;
class PrimeTable;
class ProgressWheel;

// Says at a progress wheel which prime a calculation on a thread has reached, a few times a second for the
// eye and once a second for the ear, and after a second beside it, how far that is in per cent and how to
// stop it. It only looks at the table, from the main thread; the calculation knows nothing of it, and one
// that is over at once shows nothing.
class CalculationProgress {
public:
    // `formatAuto` says whether numbers are shown in groups; `desktop` calls the user back from elsewhere.
    CalculationProgress(
        EventLoop& loop, Desktop& desktop, const PrimeTable& table, const CheckBox& formatAuto);

    // Begins to say at `wheel` and in `label` how far the table is on its way to `goal`; 0: that isn't known
    // yet.
    void Follow(ProgressWheel& wheel, Label& label, std::uint64_t goal);
    // Ends that and leaves nothing of it there. After more than ten seconds the user may be elsewhere, and is
    // called.
    void End();

    // Which number the table has to reach, 0 for none: the calculation may put it here from its thread.
    std::atomic<std::uint64_t> Goal = 0;

private:
    void Tell();
    void TellBeside(std::uint64_t reached, std::uint64_t goal);

    EventLoop& loop_;
    Desktop& desktop_;
    const PrimeTable& table_;
    const CheckBox& formatAuto_;
    Timer timer_;
    ProgressWheel* wheel_ = nullptr;
    Label* label_ = nullptr;
    std::int64_t begun_ = 0; // in milliseconds
    int looks_ = 0;
};

class Fncts;
struct Services;

// A calculation that reads the table of primes and extends it, at once or on a thread: at most one at a time,
// whichever window asks for it, so that the table has one writer. What becomes of its result is up to whoever
// starts it.
class Calculation {
public:
    // Whose result waits for the main thread.
    enum Step : std::int16_t { factorsAreThere = 3, listRunHasEnded = 4 };

    // What a thread is to do, and where it shows how far it is.
    struct Task {
        Step step;
        std::uint64_t ThrPn1; // the number or limit that the body works on
        ProgressWheel& wheel;
        Label& label;
        std::uint64_t goal; // 0: not known yet
        bool isAskedFor;    // by the user, so that its end is announced however short it was
        // On the thread. It touches the table, its result and the stop flag, and no control.
        std::function<void(std::uint64_t)> body;
        // On the main thread, once the body has been left: deals with the result, and calls End.
        std::function<void(std::uint64_t)> whenOver;
    };

    Calculation(Fncts& fncts, Services& services, PrimeTable& table, const CheckBox& formatAuto);

    // From a calculation's beginning until its result has been dealt with.
    bool CalculEnCours() const { return calculEnCours_; }
    void Begin();
    void End() { calculEnCours_ = false; }

    // Goes on with the calculation that has begun on the thread, with the commands frozen.
    void RunOnThread(Task task);
    bool IsOnThread() const { return worker_.IsRunning(); }

    // Has a running calculation end at its next look at the flag.
    void Stop();
    // The same if the key is Escape, with the sound that says so.
    void StopOnEscape(const std::string& key);

    // Fills `factors`, on any thread; `checkTime` applies TicksFinCalc.
    void DecompPremCalc(std::uint64_t n, std::vector<std::uint64_t>& factors, bool checkTime);
    // Extends the table: by one prime for a limit of 0, else until the last number tested is at least
    // `limit`. Gives the table's last entry.
    std::uint64_t NbresPremCalc(std::uint64_t limit, bool checkTime);

    // A fixed diagnostic after a run that memory, or a failure, ended; nothing after any other.
    void TellWhyRunEnded();
    // Tells a screen reader that a run has ended, and with what, unless nobody would miss that.
    void AnnounceRunEnded(const std::string& resultat);

    // Sets TicksFinCalc that far from now.
    void GiveUpAfter(std::int64_t ticks);
    std::int64_t TicksFinCalc = 0; // when a calculation on the main thread has to give up
    CalculationProgress Progress;

    Event<void()> EnableMenuBoutons; // the commands have been frozen, or are free again
    Event<void()> EndAnnounced;

private:
    void HoldMenu(bool hold);
    void ThreadFailed(const std::string& reason);
    void TimerThr_Action();
    RunControl MakeRunControl(bool checkTime);

    Fncts& fncts_;
    Services& services_;
    PrimeTable& table_;
    bool calculEnCours_ = false;
    std::int16_t thrNo_ = 0;
    std::optional<Task> task_;
    std::int64_t runBegan_ = 0;
    RunEnd lastRunEnd_{};
    Timer timerThr_;
    Thread worker_; // last, so that it is joined before anything goes that its body uses
};

} // namespace tessarolyne

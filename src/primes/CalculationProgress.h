#pragma once

#include "platform/Timer.h"

#include <atomic>
#include <cstdint>

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

} // namespace tessarolyne

#pragma once

#include "platform/Timer.h"

#include <atomic>
#include <cstdint>

namespace tessarolyne {

class CheckBox;
class EventLoop;
class PrimeTable;
class ProgressWheel;

// Says at a progress wheel which prime a calculation on a thread has reached, a few times a second for the
// eye and once a second for the ear. It only looks at the table, from the main thread; the calculation knows
// nothing of it, and one that is over at once is told of nowhere.
class CalculationProgress {
public:
    // `formatAuto` says whether numbers are shown in groups.
    CalculationProgress(EventLoop& loop, const PrimeTable& table, const CheckBox& formatAuto);

    // Begins to say at `wheel` how far the table is on its way to `goal`; 0: that isn't known yet.
    void Follow(ProgressWheel& wheel, std::uint64_t goal);
    // Ends that and leaves nothing of it on the wheel.
    void End();

    // Which number the table has to reach, 0 for none: the calculation may put it here from its thread.
    std::atomic<std::uint64_t> Goal = 0;

private:
    void Tell();

    const PrimeTable& table_;
    const CheckBox& formatAuto_;
    Timer timer_;
    ProgressWheel* wheel_ = nullptr;
    int looks_ = 0;
};

} // namespace tessarolyne

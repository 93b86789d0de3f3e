#pragma once

#include "platform/Services.h"

#include <atomic>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tessarolyne {

// Why a calculation ended.
enum class RunEnd { Finished, Stopped, OutOfTime, OutOfMemory, TableFull };

// What the user reads in a message box when one of the last two ended a calculation.
inline constexpr std::string_view outOfMemoryText =
    "The calculation was ended: there is no memory left for more prime numbers.";
inline constexpr std::string_view tableFullText =
    "The calculation was ended: the table holds 2 147 483 647 prime numbers and takes no more.";

// What may end one calculation before its time: the stop flag, the time budget, the memory budget; and which
// of them did. One object serves one calculation on one thread; only the flag is shared with other threads.
class RunControl {
public:
    // All references outlive the object. With `TicksFinCalc` the calculation gives up once the clock's Ticks
    // have passed that, without it there is no time limit.
    RunControl(std::atomic<bool>& ArretUrg, const Clock& clock, const MemoryLimits& memory,
        std::optional<std::int64_t> TicksFinCalc = std::nullopt, std::atomic<std::uint64_t>* goal = nullptr)
        : stopFlag_(ArretUrg), clock_(clock), memory_(memory), ticksFinCalc_(TicksFinCalc), goal_(goal) {}

    RunControl(const RunControl&) = delete;
    RunControl& operator=(const RunControl&) = delete;

    // True when a time limit was given.
    bool IsTimed() const { return ticksFinCalc_.has_value(); }

    // True when the calculation has to end now. Raises the flag itself when the time is spent.
    bool MustStop() {
        const bool isLate = ticksFinCalc_ && *ticksFinCalc_ < clock_.Ticks();
        if (!isLate && !stopFlag_.load(std::memory_order_acquire)) {
            return false;
        }
        StopFor(isLate ? RunEnd::OutOfTime : RunEnd::Stopped);
        return true;
    }

    // Raises the flag for `reason`; the first reason stays. Gives RunEnd::Stopped.
    RunEnd StopFor(RunEnd reason) {
        const bool wasRaised = stopFlag_.exchange(true, std::memory_order_acq_rel);
        if (end_ == RunEnd::Finished) {
            end_ = wasRaised ? RunEnd::Stopped : reason;
        }
        return RunEnd::Stopped;
    }

    // Tells who looks on, by the `goal` that the object was made with, which number the table has to reach.
    void Aim(std::uint64_t goal) {
        if (goal_ != nullptr) {
            goal_->store(goal, std::memory_order_relaxed);
        }
    }

    // Why the calculation ended, RunEnd::Finished as long as nothing has stopped it.
    RunEnd End() const { return end_; }

    // The size in bytes beyond which the calculation must not grow its data: `bytesNow` and half of the
    // memory available when it is asked for the first time. Later calls repeat that answer, since memory that
    // the calculation itself has taken must not count twice.
    std::uint64_t ByteCeiling(std::uint64_t bytesNow) {
        if (!byteCeiling_) {
            byteCeiling_ = bytesNow + memory_.AvailableBytes() / 2;
        }
        return *byteCeiling_;
    }

private:
    std::atomic<bool>& stopFlag_;
    const Clock& clock_;
    const MemoryLimits& memory_;
    const std::optional<std::int64_t> ticksFinCalc_;
    std::atomic<std::uint64_t>* const goal_;
    std::optional<std::uint64_t> byteCeiling_;
    RunEnd end_ = RunEnd::Finished;
};

} // namespace tessarolyne

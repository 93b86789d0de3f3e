#include "primes/engine/RunControl.h"

namespace tessarolyne {

bool RunControl::MustStop() {
    if (ticksFinCalc_ && *ticksFinCalc_ < clock_.Ticks()) {
        StopFor(RunEnd::OutOfTime);
    }
    if (!stopFlag_.load(std::memory_order_acquire)) {
        return false;
    }
    if (end_ == RunEnd::Finished) {
        end_ = RunEnd::Stopped;
    }
    return true;
}

RunEnd RunControl::StopFor(RunEnd reason) {
    if (end_ == RunEnd::Finished) {
        end_ = stopFlag_.load(std::memory_order_acquire) ? RunEnd::Stopped : reason;
    }
    stopFlag_.store(true, std::memory_order_release);
    return RunEnd::Stopped;
}

std::uint64_t RunControl::ByteCeiling(std::uint64_t bytesNow) {
    if (!byteCeiling_) {
        byteCeiling_ = bytesNow + memory_.AvailableBytes() / 2;
    }
    return *byteCeiling_;
}

} // namespace tessarolyne

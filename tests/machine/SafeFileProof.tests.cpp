#include "machine/SaveProof.h"
#include "machine/Tracer.h"

#include <doctest/doctest.h>

#include <cerrno>
#include <cstdlib>

using namespace tessarolyne;

namespace {

const SaveProof safe{"safe"};

bool CanTraceHere() {
    static const bool can = CanTrace();
    if (!can) {
        MESSAGE("skipped: this system doesn't let a process be traced");
    }
    return can;
}

void CheckNone(const SaveProof::Faults& faults) {
    CHECK_MESSAGE(
        faults.empty(), faults.size(), " faults, the first: ", faults.empty() ? "" : faults.front());
}

} // namespace

TEST_CASE("A save that is killed at any of its system calls leaves the old file or the new one") {
    if (CanTraceHere()) {
        CheckNone(safe.WhenKilledAtEachCall());
    }
}

TEST_CASE("A system call that fails makes the save a reported failure with nothing left behind") {
    if (CanTraceHere()) {
        for (const int error : {EIO, ENOSPC, EDQUOT, EACCES}) {
            CheckNone(safe.WhenEachCallFails(error));
        }
    }
}

TEST_CASE("A file is synced before it takes its name, and its folder after") {
    if (CanTraceHere()) {
        CheckNone(safe.InOrderOfSyncs());
    }
}

TEST_CASE("A save that is killed at a random moment leaves the old file or the new one") {
    const int times = std::getenv("TESSAROLYNE_LONG") != nullptr ? 1000 : 50;
    CheckNone(SaveProof{"safe", 5000, 1024 * 1024}.WhenKilledAtRandom(times, 20261122));
}

TEST_CASE("A save to a disk that is too small by any number of pages fails and leaves the old file") {
    const auto faults = SaveProof{"safe", 5000, 300'000}.OnDiskOfEachSize();
    if (faults) {
        CheckNone(*faults);
    } else {
        MESSAGE("skipped: this system doesn't let a memory disk be mounted");
    }
}

TEST_CASE("The proof catches a writer with a fault") {
    if (CanTraceHere()) {
        CHECK_FALSE(SaveProof{"in-place"}.WhenKilledAtEachCall().empty());
        CHECK_FALSE(SaveProof{"in-place"}.WhenEachCallFails(EIO).empty());
        CHECK_FALSE(SaveProof{"unchecked-write"}.WhenEachCallFails(ENOSPC).empty());
        CHECK_FALSE(SaveProof{"unchecked-sync"}.WhenEachCallFails(EIO).empty());
        CHECK_FALSE(SaveProof{"leaves-temporary"}.WhenEachCallFails(EACCES).empty());
        CHECK_FALSE(SaveProof{"no-sync"}.InOrderOfSyncs().empty());
    }
    const auto onFullDisk = SaveProof{"unchecked-write", 5000, 30'000}.OnDiskOfEachSize();
    CHECK((!onFullDisk || !onFullDisk->empty()));
}

#include "machine/SaveProof.h"
#include "machine/SavedContent.h"
#include "machine/Tracer.h"

#include <doctest/doctest.h>

#include <cerrno>
#include <cstdlib>

using namespace tessarolyne;

namespace {

// A megabyte, and 20 where time is no matter.
SaveProof PrimeFile() {
    const std::size_t megabytes = std::getenv("TESSAROLYNE_LONG") != nullptr ? 20 : 1;
    return {std::string(primeFileWriter), 5000, megabytes * 1024 * 1024};
}

void CheckNone(const SaveProof::Faults& faults) {
    CHECK_MESSAGE(
        faults.empty(), faults.size(), " faults, the first: ", faults.empty() ? "" : faults.front());
}

} // namespace

TEST_CASE("A prime file is the old or the new one, whole, wherever its save is killed or a call fails") {
    if (!CanTrace()) {
        MESSAGE("skipped: this system doesn't let a process be traced");
        return;
    }
    CheckNone(PrimeFile().WhenKilledAtEachCall());
    for (const int error : {EIO, ENOSPC, EDQUOT}) {
        CheckNone(PrimeFile().WhenEachCallFails(error));
    }
    CheckNone(PrimeFile().InOrderOfSyncs());
}

TEST_CASE("A prime file's save that is killed at a random moment leaves the old file or the new one") {
    CheckNone(PrimeFile().WhenKilledAtRandom(50, 20261122));
}

TEST_CASE("A prime file is saved to a disk that is large enough and left alone on any that is too small") {
    const auto faults = SaveProof{std::string(primeFileWriter), 5000, 300'000}.OnDiskOfEachSize();
    if (faults) {
        CheckNone(*faults);
    } else {
        MESSAGE("skipped: this system doesn't let a memory disk be mounted");
    }
}

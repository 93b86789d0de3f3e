#include "machine/SaveProof.h"
#include "machine/SavedContent.h"
#include "machine/Tracer.h"

#include <doctest/doctest.h>

#include <cerrno>
#include <cstdlib>

using namespace tessarolyne;

namespace {

const bool takesTime = std::getenv("TESSAROLYNE_LONG") != nullptr;
const std::string primeFile(primeFileWriter);

// What the preferences are saved by, and the prime file on top of it: a megabyte, or 20 where time is no
// matter.
const SaveProof proofs[] = {{"safe"}, {primeFile, 5000, std::size_t{takesTime ? 20U : 1U} * 1024 * 1024}};

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
    for (const SaveProof& proof : proofs) {
        if (CanTraceHere()) {
            CheckNone(proof.WhenKilledAtEachCall());
        }
    }
}

TEST_CASE("A system call that fails makes the save a reported failure with nothing left behind") {
    for (const SaveProof& proof : proofs) {
        for (const int error : {EIO, ENOSPC, EDQUOT, EACCES}) {
            if (CanTraceHere()) {
                CheckNone(proof.WhenEachCallFails(error));
            }
        }
    }
}

TEST_CASE("A file is synced before it takes its name, and its folder after") {
    for (const SaveProof& proof : proofs) {
        if (CanTraceHere()) {
            CheckNone(proof.InOrderOfSyncs());
        }
    }
}

TEST_CASE("A save that is killed at a random moment leaves the old file or the new one") {
    CheckNone(SaveProof{"safe", 5000, 1024 * 1024}.WhenKilledAtRandom(takesTime ? 1000 : 50, 20261122));
    CheckNone(proofs[1].WhenKilledAtRandom(50, 20261122));
}

TEST_CASE("A save to a disk that is too small by any number of pages fails and leaves the old file") {
    for (const std::string& writer : {std::string("safe"), primeFile}) {
        if (const auto faults = SaveProof{writer, 5000, 300'000}.OnDiskOfEachSize()) {
            CheckNone(*faults);
        } else {
            MESSAGE("skipped: this system doesn't let a memory disk be mounted");
        }
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

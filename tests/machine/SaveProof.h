#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tessarolyne {

// What is proved of a writer: whatever happens during a save, the file is the old or the new one, whole; a
// reported failure leaves no temporary; success is never reported for a failure; what a kill leaves is swept.
// Each function gives a sentence for each time that this didn't hold.
struct SaveProof {
    std::string writer; // a name that the program SaveWriter knows
    std::size_t oldSize = 5000;
    std::size_t newSize = 600'000;

    using Faults = std::vector<std::string>;

    // Killed before each of its system calls, one run for each.
    Faults WhenKilledAtEachCall() const;
    // Each of its system calls failing once with the error.
    Faults WhenEachCallFails(int error) const;
    // The file synced before it takes its name, and the folder after.
    Faults InOrderOfSyncs() const;
    // Killed at random moments of saves that follow one upon the other.
    Faults WhenKilledAtRandom(int times, unsigned seed) const;
    // Saving to a memory disk of each size in turn, from one that just holds the old file to one that holds
    // both. Nothing if no disk can be mounted here.
    std::optional<Faults> OnDiskOfEachSize() const;
};

} // namespace tessarolyne

#pragma once

#include <map>
#include <string>
#include <vector>

namespace tessarolyne {

// Stands between the sources of this program and the system: notes their calls as long as it lives, and lets
// them fail or the process die as it is told. One at a time.
class FailingCalls {
public:
    FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;
    ~FailingCalls();

    static constexpr int kill = -1; // in place of an error

    std::map<std::string, int> refused; // calls that always fail, with their errors
    int failing = -1;                   // the number of the one that fails, from 0
    int error = 0;
    std::size_t longestWrite = 100'000;

    std::vector<std::string> made; // also those that failed

    // What a call is told: 0, or the error that it fails with.
    int Note(const char* call);
};

// The living one; nullptr for none.
FailingCalls* Failing();

} // namespace tessarolyne

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tessarolyne {

// What is done to one system call of a traced program.
struct Meddling {
    std::size_t call; // counted from 0
    // The call isn't made and fails with this; without it the program is killed.
    std::optional<int> error = {};
};

struct TracedRun {
    std::vector<long> calls;   // their numbers, from the program's SIGSTOP to its end
    std::optional<int> ending; // the exit code; nothing if a signal ended the program
};

// Whether programs can be traced here and system calls replaced on this processor.
bool CanTrace();

// Runs a program that stops itself with SIGSTOP where the interesting part begins.
TracedRun Trace(const std::vector<std::string>& command, std::optional<Meddling> meddling);

// Starts a program and gives its process number, for the caller to wait for.
int Start(const std::vector<std::string>& command, int standardOutput = -1);

// The exit code of a started program; nothing if a signal ended it. A program that stops itself is set going.
std::optional<int> WaitFor(int process);

} // namespace tessarolyne

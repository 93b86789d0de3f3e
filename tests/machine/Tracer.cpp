#include "machine/Tracer.h"

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <elf.h>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tessarolyne {

namespace {

[[noreturn]] void Execute(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    for (const auto& argument : command) {
        arguments.push_back(const_cast<char*>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    ::execv(arguments[0], arguments.data());
    std::_Exit(127);
}

int Wait(pid_t process) {
    int status = 0;
    while (::waitpid(process, &status, WUNTRACED) < 0) {
        if (errno != EINTR) {
            throw std::runtime_error("waitpid");
        }
    }
    return status;
}

#if defined(__x86_64__)
constexpr bool canReplaceCalls = true;
void SkipCall(pid_t process) {
    ::ptrace(PTRACE_POKEUSER, process, offsetof(user_regs_struct, orig_rax), -1L);
}
void SetResult(pid_t process, long result) {
    ::ptrace(PTRACE_POKEUSER, process, offsetof(user_regs_struct, rax), result);
}
#elif defined(__aarch64__)
constexpr bool canReplaceCalls = true;
void SkipCall(pid_t process) {
    int number = -1;
    iovec place{&number, sizeof number};
    ::ptrace(PTRACE_SETREGSET, process, NT_ARM_SYSTEM_CALL, &place);
}
void SetResult(pid_t process, long result) {
    user_regs_struct registers{};
    iovec place{&registers, sizeof registers};
    ::ptrace(PTRACE_GETREGSET, process, NT_PRSTATUS, &place);
    registers.regs[0] = static_cast<unsigned long long>(result);
    ::ptrace(PTRACE_SETREGSET, process, NT_PRSTATUS, &place);
}
#else
constexpr bool canReplaceCalls = false;
void SkipCall(pid_t) {}
void SetResult(pid_t, long) {}
#endif

__ptrace_syscall_info CallOf(pid_t process) {
    __ptrace_syscall_info info{};
    ::ptrace(PTRACE_GET_SYSCALL_INFO, process, sizeof info, &info);
    return info;
}

// Follows the calls of a stopped process to its end.
TracedRun Follow(pid_t process, std::optional<Meddling> meddling) {
    TracedRun run;
    bool replaceResult = false;
    int pass = 0;
    while (true) {
        ::ptrace(PTRACE_SYSCALL, process, 0, pass);
        const int status = Wait(process);
        if (!WIFSTOPPED(status)) {
            run.ending = WIFEXITED(status) ? std::optional(WEXITSTATUS(status)) : std::nullopt;
            return run;
        }
        pass = 0;
        if (WSTOPSIG(status) != (SIGTRAP | 0x80)) {
            pass = WSTOPSIG(status);
            continue;
        }
        const auto info = CallOf(process);
        if (info.op == PTRACE_SYSCALL_INFO_EXIT) {
            if (replaceResult) {
                SetResult(process, -static_cast<long>(*meddling->error));
                replaceResult = false;
            }
        } else if (info.op == PTRACE_SYSCALL_INFO_ENTRY) {
            const auto number = static_cast<long>(info.entry.nr);
            if (number != SYS_exit_group && meddling && meddling->call == run.calls.size()) {
                if (meddling->error) {
                    SkipCall(process);
                    replaceResult = true;
                } else {
                    ::kill(process, SIGKILL);
                }
            }
            run.calls.push_back(number);
        }
    }
}

} // namespace

TracedRun Trace(const std::vector<std::string>& command, std::optional<Meddling> meddling) {
    const pid_t process = ::fork();
    if (process == 0) {
        ::ptrace(PTRACE_TRACEME, 0, 0, 0);
        Execute(command);
    }
    int status = Wait(process);
    ::ptrace(PTRACE_SETOPTIONS, process, 0, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    while (WIFSTOPPED(status) && WSTOPSIG(status) != SIGSTOP) {
        ::ptrace(PTRACE_CONT, process, 0, WSTOPSIG(status) == SIGTRAP ? 0 : WSTOPSIG(status));
        status = Wait(process);
    }
    if (!WIFSTOPPED(status)) {
        throw std::runtime_error("the traced program ended before its mark");
    }
    return Follow(process, meddling);
}

bool CanTrace() {
    const pid_t process = ::fork();
    if (process == 0) {
        std::_Exit(::ptrace(PTRACE_TRACEME, 0, 0, 0) == 0 ? 0 : 1);
    }
    return canReplaceCalls && WaitFor(process) == 0;
}

int Start(const std::vector<std::string>& command, int standardOutput) {
    const pid_t process = ::fork();
    if (process == 0) {
        if (standardOutput >= 0) {
            ::dup2(standardOutput, STDOUT_FILENO);
        }
        Execute(command);
    }
    return process;
}

std::optional<int> WaitFor(int process) {
    int status = Wait(process);
    while (WIFSTOPPED(status)) {
        ::kill(process, SIGCONT);
        status = Wait(process);
    }
    return WIFEXITED(status) ? std::optional(WEXITSTATUS(status)) : std::nullopt;
}

} // namespace tessarolyne

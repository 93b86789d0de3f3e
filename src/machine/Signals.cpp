#include "machine/Signals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace tessarolyne {

namespace {

constexpr std::array watched = {SIGTERM, SIGHUP, SIGINT};

// What the handler can reach: a pipe, since writing to one is among the few things that a handler may do.
int readEnd = -1;
int writeEnd = -1;
std::array<struct sigaction, watched.size()> before;

extern "C" void NoteSignal(int number) {
    const int error = errno;
    const auto byte = static_cast<unsigned char>(number);
    [[maybe_unused]] const auto written = write(writeEnd, &byte, 1); // full: signals enough are waiting
    errno = error;
}

} // namespace

Signals::Signals() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe");
    }
    readEnd = ends[0];
    writeEnd = ends[1];
    struct sigaction action = {};
    action.sa_handler = NoteSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < watched.size(); ++i) {
        sigaction(watched[i], &action, &before[i]);
        if (before[i].sa_handler == SIG_IGN) {
            sigaction(watched[i], &before[i], nullptr); // as nohup started us
        }
    }
}

Signals::~Signals() {
    for (std::size_t i = 0; i < watched.size(); ++i) {
        sigaction(watched[i], &before[i], nullptr);
    }
    close(readEnd);
    close(writeEnd);
    readEnd = writeEnd = -1;
}

int Signals::Descriptor() const {
    return readEnd;
}

int Signals::Take() {
    unsigned char byte = 0;
    return read(readEnd, &byte, 1) == 1 ? byte : 0;
}

} // namespace tessarolyne

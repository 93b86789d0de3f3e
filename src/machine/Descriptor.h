#pragma once

#include "platform/FileSystem.h"

#include <cerrno>
#include <string>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace tessarolyne {

// Calls again as long as a signal cut the call short.
template <class Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

// Throws the IOException for a system call that has just set errno.
[[noreturn]] inline void ThrowErrno(const std::string& step) {
    throw IOException(step + ": " + std::generic_category().message(errno));
}

// An open file descriptor, closed when it goes. Close reports what the destructor can't.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() { Close(); }

    int operator*() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }

    // False with errno if the system reports a failure; the number is gone in any case, as Linux defines it,
    // so that a second attempt could close another thread's file.
    bool Close() {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0 || errno == EINTR;
    }

private:
    int number_;
};

} // namespace tessarolyne

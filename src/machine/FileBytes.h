#pragma once

#include "platform/FolderItem.h"

#include <cerrno>
#include <string>
#include <string_view>
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

// Whether a system call that failed with this error says that it can't be done here, as with a folder that
// isn't the user's or a file system without the means; and not that the disk is full or broken.
bool IsRefusal(int error);

// Writes all bytes at the file's place. Throws IOException.
void WriteAll(int file, std::string_view bytes);

// Brings the file or folder to the disk. False with errno; a file system that has no sync counts as done.
bool Sync(int file);

// An empty file without a name, for the user alone, gone when it is closed. Throws IOException.
Descriptor NamelessFile();

// Whether the folder has the open file under this name, and it is a regular one.
bool IsNamed(int folder, const std::string& name, int file);

// Puts the content of one open file into another that stays what it is, with its name, owner, permissions and
// further names. Its old content is kept aside meanwhile and put back if this fails; only the end of the
// process in the middle leaves it in part. Throws IOException.
void Overwrite(int folder, const std::string& name, int content);

} // namespace tessarolyne

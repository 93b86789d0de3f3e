#include "machine/TemporaryFile.h"

#include "machine/FileBytes.h"
#include "platform/Text.h"

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <vector>

namespace tessarolyne {

namespace {

constexpr std::string_view prefix = ".tessarolyne-save-";
constexpr int mostNames = 10000;

enum class Locked { Yes, No, ByAnother };

// A file system without locks gives No: a save goes on there, and a sweep leaves its files alone.
Locked TryLock(int file) {
    if (Uninterrupted([&] { return ::flock(file, LOCK_EX | LOCK_NB); }) == 0) {
        return Locked::Yes;
    }
    return errno == EWOULDBLOCK ? Locked::ByAnother : Locked::No;
}

// Whether a name is one that TemporaryFile gives.
bool IsOurs(std::string_view name) {
    if (!name.starts_with(prefix) || name.size() == prefix.size()) {
        return false;
    }
    name.remove_prefix(prefix.size());
    return std::all_of(name.begin(), name.end(), IsDigit);
}

void Sweep(int folder, const std::string& name) {
    // Open for writing, as network file systems want it for an exclusive lock.
    constexpr int flags = O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const Descriptor file(Uninterrupted([&] { return ::openat(folder, name.c_str(), flags); }));
    // Two sweeps may meet: the first removes the name, and a new save takes it before the second has its
    // lock.
    if (file.IsOpen() && TryLock(*file) == Locked::Yes && IsNamed(folder, name, *file)) {
        ::unlinkat(folder, name.c_str(), 0);
    }
}

} // namespace

std::unique_ptr<TemporaryFile> TemporaryFile::Make(int folder, mode_t permissions) {
    constexpr int flags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    for (int number = 0; number < mostNames; ++number) {
        const std::string name = std::string(prefix) + std::to_string(number);
        Descriptor file(Uninterrupted([&] { return ::openat(folder, name.c_str(), flags, permissions); }));
        if (file.IsOpen()) {
            std::unique_ptr<TemporaryFile> made(new TemporaryFile(folder, name, std::move(file)));
            if (made->Lock()) {
                return made;
            }
        } else if (IsRefusal(errno)) {
            return nullptr;
        } else if (errno != EEXIST) {
            ThrowErrno("make a temporary file");
        }
    }
    throw IOException("make a temporary file: all names are taken");
}

TemporaryFile::~TemporaryFile() {
    // A second time, since nobody hears of a failure and the next chance is the next start.
    for (int times = 0; times < 2 && !name_.empty(); ++times) {
        if (::unlinkat(folder_, name_.c_str(), 0) == 0) {
            name_.clear();
        }
    }
}

// False if a sweep took the new file for a leftover in the moment before it was locked.
bool TemporaryFile::Lock() {
    if (TryLock(*file_) == Locked::ByAnother) {
        return false;
    }
    struct stat status {};
    if (::fstat(*file_, &status) != 0) {
        ThrowErrno("look at the temporary file");
    }
    if (status.st_nlink > 0 || IsNamed(folder_, name_, *file_)) {
        return true;
    }
    name_.clear(); // it may be another save's by now
    return false;
}

bool TemporaryFile::TakeName(const std::string& name) {
    // Over a network the answer may get lost: what counts is whose name it is.
    const bool renamed = ::renameat(folder_, name_.c_str(), folder_, name.c_str()) == 0;
    const int error = errno;
    if (!renamed && !IsNamed(folder_, name, *file_)) {
        errno = error;
        return false;
    }
    name_.clear();
    return true;
}

void SweepTemporaryFiles(const std::string& folder) {
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.c_str()), &::closedir);
    if (entries == nullptr) {
        return;
    }
    std::vector<std::string> names;
    while (const dirent* entry = ::readdir(entries.get())) {
        if (IsOurs(entry->d_name)) {
            names.emplace_back(entry->d_name);
        }
    }
    for (const std::string& name : names) {
        Sweep(::dirfd(entries.get()), name);
    }
}

} // namespace tessarolyne

#include "machine/TemporaryFile.h"

#include "platform/Ascii.h"

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
    switch (errno) {
    case EWOULDBLOCK:
        return Locked::ByAnother;
    case ENOLCK:
    case ENOSYS:
    case EOPNOTSUPP:
        return Locked::No;
    default:
        ThrowErrno("lock the temporary file");
    }
}

// Whether the folder still has the open file under this name. Two sweeps may meet: the first removes the
// name, and a new save takes it before the second has its lock.
bool StillNamed(int folder, const std::string& name, int file) {
    struct stat open {};
    struct stat named {};
    return ::fstat(file, &open) == 0 && S_ISREG(open.st_mode) &&
           ::fstatat(folder, name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 && open.st_dev == named.st_dev &&
           open.st_ino == named.st_ino;
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
    try {
        if (file.IsOpen() && TryLock(*file) == Locked::Yes && StillNamed(folder, name, *file)) {
            ::unlinkat(folder, name.c_str(), 0);
        }
    } catch (const IOException&) {
        return; // it can't be told who holds it
    }
}

} // namespace

TemporaryFile::TemporaryFile(int folder, mode_t permissions) : folder_(folder) {
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    for (int number = 0; number < mostNames; ++number) {
        name_ = std::string(prefix) + std::to_string(number);
        file_ =
            Descriptor(Uninterrupted([&] { return ::openat(folder_, name_.c_str(), flags, permissions); }));
        if (!file_.IsOpen() && errno != EEXIST) {
            ThrowErrno("make a temporary file");
        }
        if (file_.IsOpen() && Lock()) {
            return;
        }
    }
    throw IOException("make a temporary file: all names are taken");
}

TemporaryFile::~TemporaryFile() {
    if (!name_.empty()) {
        ::unlinkat(folder_, name_.c_str(), 0);
    }
}

// False if a sweep took the new file for a leftover in the moment before it was locked.
bool TemporaryFile::Lock() {
    try {
        if (TryLock(*file_) != Locked::ByAnother) {
            struct stat status {};
            if (::fstat(*file_, &status) != 0) {
                ThrowErrno("look at the temporary file");
            }
            if (status.st_nlink > 0) {
                return true;
            }
        }
        return false;
    } catch (...) {
        ::unlinkat(folder_, name_.c_str(), 0);
        throw;
    }
}

void TemporaryFile::CloseAndRename(const std::string& name) {
    // The lock belongs to the open file, not to its number: a second number holds it over the close.
    Descriptor lock(::fcntl(*file_, F_DUPFD_CLOEXEC, 0));
    if (!lock.IsOpen()) {
        ThrowErrno("hold the temporary file");
    }
    if (!file_.Close()) {
        ThrowErrno("close the temporary file");
    }
    if (::renameat(folder_, name_.c_str(), folder_, name.c_str()) != 0) {
        ThrowErrno("rename the temporary file");
    }
    name_.clear();
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

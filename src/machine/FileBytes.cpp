#include "machine/FileBytes.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <filesystem>
#include <sys/mman.h>
#include <sys/stat.h>

namespace tessarolyne {

namespace {

constexpr std::size_t pieceSize = std::size_t{256} * 1024;

// From the start of both, with nothing of the second left behind it.
void Copy(int from, int to) {
    if (::lseek(from, 0, SEEK_SET) != 0 || ::lseek(to, 0, SEEK_SET) != 0) {
        ThrowErrno("go to the start of a file");
    }
    std::vector<char> piece(pieceSize);
    off_t size = 0;
    while (true) {
        const auto count = Uninterrupted([&] { return ::read(from, piece.data(), piece.size()); });
        if (count < 0) {
            ThrowErrno("read a file to be copied");
        }
        if (count == 0) {
            break;
        }
        WriteAll(to, {piece.data(), static_cast<std::size_t>(count)});
        size += count;
    }
    if (Uninterrupted([&] { return ::ftruncate(to, size); }) != 0) {
        ThrowErrno("cut a file");
    }
}

void CopyAndSync(int from, int to) {
    Copy(from, to);
    if (!Sync(to)) {
        ThrowErrno("sync a file");
    }
}

} // namespace

bool IsRefusal(int error) {
    constexpr std::array refusals = {EACCES, EPERM, EROFS, EBUSY, ETXTBSY, EXDEV, EINVAL, ENOSYS, EOPNOTSUPP};
    return std::find(refusals.begin(), refusals.end(), error) != refusals.end();
}

void WriteAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto count = Uninterrupted([&] { return ::write(file, bytes.data(), bytes.size()); });
        if (count < 0) {
            ThrowErrno("write");
        }
        if (count == 0) {
            throw IOException("write: the system takes no byte");
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

bool Sync(int file) {
    return Uninterrupted([&] { return ::fsync(file); }) == 0 || errno == EINVAL || errno == ENOSYS ||
           errno == EOPNOTSUPP;
}

Descriptor NamelessFile() {
    std::error_code error;
    const auto folder = std::filesystem::temp_directory_path(error);
    Descriptor file(error ? -1 : ::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
    if (!file.IsOpen()) {
        file = Descriptor(::memfd_create("tessarolyne", MFD_CLOEXEC));
    }
    if (!file.IsOpen()) {
        ThrowErrno("make a file without a name");
    }
    return file;
}

bool IsNamed(int folder, const std::string& name, int file) {
    struct stat open {};
    struct stat named {};
    return ::fstat(file, &open) == 0 && S_ISREG(open.st_mode) &&
           ::fstatat(folder, name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 && open.st_dev == named.st_dev &&
           open.st_ino == named.st_ino;
}

void Overwrite(int folder, const std::string& name, int content) {
    // The files that a sandbox is given take every O_NOFOLLOW for a link; IsNamed finds one too.
    constexpr int flags = O_RDWR | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    const Descriptor file(Uninterrupted([&] { return ::openat(folder, name.c_str(), flags); }));
    if (!file.IsOpen()) {
        ThrowErrno("open " + name);
    }
    if (!IsNamed(folder, name, *file)) {
        throw IOException("not a regular file: " + name);
    }
    const Descriptor old = NamelessFile();
    Copy(*file, *old);
    try {
        CopyAndSync(content, *file);
    } catch (...) {
        CopyAndSync(*old, *file);
        throw;
    }
}

} // namespace tessarolyne

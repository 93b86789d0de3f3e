#include "machine/SafeFile.h"

#include <cstddef>
#include <fcntl.h>
#include <sys/stat.h>

namespace tessarolyne {

namespace {

constexpr std::size_t bufferSize = std::size_t{256} * 1024;

// Some file systems have no sync for a folder and say so by these two.
bool SyncFolder(int folder) {
    return Uninterrupted([&] { return ::fsync(folder); }) == 0 || errno == EINVAL || errno == EOPNOTSUPP;
}

constexpr auto sameUser = static_cast<uid_t>(-1);

// False where the user may not give his file to them.
bool Give(int file, uid_t user, gid_t group) {
    if (::fchown(file, user, group) == 0) {
        return true;
    }
    if (errno != EPERM) {
        ThrowErrno("give the temporary file to its owner");
    }
    return false;
}

} // namespace

SafeFile::SafeFile(const std::string& path, LinkPolicy links)
    : target_(FindSaveTarget(path, links)),
      folder_(
          Uninterrupted([&] { return ::open(target_.folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); })) {
    if (!folder_.IsOpen()) {
        ThrowErrno("open the folder " + target_.folder);
    }
    buffer_.reserve(bufferSize);
    // A file that replaces another is closed to others until it has that file's permissions.
    temporary_ = std::make_unique<TemporaryFile>(*folder_, target_.old ? 0600 : 0666);
    if (target_.old) {
        TakeOver(*target_.old);
    }
}

void SafeFile::TakeOver(const SaveTarget::Owner& old) {
    struct stat made {};
    if (::fstat(temporary_->Number(), &made) != 0) {
        ThrowErrno("look at the temporary file");
    }
    mode_t permissions = old.permissions;
    if ((made.st_uid != old.user || made.st_gid != old.group) &&
        !Give(temporary_->Number(), old.user, old.group) &&
        !Give(temporary_->Number(), sameUser, old.group)) {
        // The group is another one now: it gets no more than everybody had.
        permissions &= ~070U | ((old.permissions & 07U) << 3U);
    }
    if (::fchmod(temporary_->Number(), permissions) != 0) {
        ThrowErrno("set the permissions of the temporary file");
    }
}

TemporaryFile& SafeFile::Unfinished() {
    if (temporary_ == nullptr) {
        throw IOException("this save has ended: " + target_.name);
    }
    return *temporary_;
}

void SafeFile::Write(std::string_view bytes) {
    Unfinished();
    if (bytes.size() <= bufferSize - buffer_.size()) {
        buffer_.append(bytes);
        return;
    }
    try {
        WriteThrough(buffer_);
        buffer_.clear();
        if (bytes.size() > bufferSize) {
            WriteThrough(bytes);
        } else {
            buffer_.append(bytes);
        }
    } catch (...) {
        temporary_.reset();
        throw;
    }
}

void SafeFile::WriteThrough(std::string_view bytes) {
    const int number = temporary_->Number();
    while (!bytes.empty()) {
        const auto count = Uninterrupted([&] { return ::write(number, bytes.data(), bytes.size()); });
        if (count < 0) {
            ThrowErrno("write " + target_.name);
        }
        if (count == 0) {
            throw IOException("write " + target_.name + ": the system takes no byte");
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void SafeFile::Commit() {
    Unfinished();
    try {
        Finish();
    } catch (...) {
        temporary_.reset();
        throw;
    }
    temporary_.reset();
}

void SafeFile::Finish() {
    WriteThrough(buffer_);
    buffer_.clear();
    if (Uninterrupted([&] { return ::fsync(temporary_->Number()); }) != 0) {
        ThrowErrno("sync " + target_.name);
    }
    temporary_->CloseAndRename(target_.name);
    if (!SyncFolder(*folder_)) {
        ThrowErrno("sync the folder " + target_.folder);
    }
}

} // namespace tessarolyne

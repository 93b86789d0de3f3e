#include "machine/PosixFileSystem.h"

#include "machine/SafeFile.h"

#include <algorithm>
#include <array>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <mntent.h>
#include <sys/stat.h>

namespace tessarolyne {

namespace {

FileStamp StampOf(const struct stat& status) {
    constexpr std::int64_t nanoseconds = 1'000'000'000;
    return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
        std::int64_t{status.st_mtim.tv_sec} * nanoseconds + status.st_mtim.tv_nsec};
}

// A device is never opened, since opening alone can do something to it, and a FIFO is never waited for.
class PosixInputFile final : public InputFile {
public:
    explicit PosixInputFile(const std::string& path) : path_(path) {
        struct stat status {};
        if (::stat(path.c_str(), &status) != 0) {
            ThrowErrno("look at " + path);
        }
        MustBeRegular(status);
        constexpr int flags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
        file_ = Descriptor(Uninterrupted([&] { return ::open(path.c_str(), flags); }));
        // Another file may stand there by now.
        if (!file_.IsOpen() || ::fstat(*file_, &status) != 0) {
            ThrowErrno("open " + path);
        }
        MustBeRegular(status);
        stamp_ = StampOf(status);
        left_ = stamp_.size;
    }

    FileStamp Stamp() const override { return stamp_; }

    std::size_t Read(std::span<char> bytes) override {
        bytes = bytes.first(static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), left_)));
        std::size_t count = 0;
        while (count < bytes.size()) {
            const auto rest = bytes.subspan(count);
            const auto read = Uninterrupted([&] { return ::read(*file_, rest.data(), rest.size()); });
            if (read < 0) {
                ThrowErrno("read " + path_);
            }
            if (read == 0) {
                break;
            }
            count += static_cast<std::size_t>(read);
        }
        left_ -= count;
        return count;
    }

private:
    void MustBeRegular(const struct stat& status) const {
        if (!S_ISREG(status.st_mode)) {
            throw IOException("not a regular file: " + path_);
        }
    }

    std::string path_;
    Descriptor file_;
    FileStamp stamp_;
    std::uint64_t left_ = 0;
};

constexpr off_t largestCopy = off_t{16} * 1024 * 1024;

// False, with what stood there before, if it can't be done.
bool CopyFile(FileSystem& files, const std::string& path, const std::string& copy) {
    try {
        const auto source = files.OpenForReading(path);
        const auto target = BeginSave(copy, LinkPolicy::ReplaceLink, path);
        std::array<char, 65536> chunk;
        for (auto count = source->Read(chunk); count > 0; count = source->Read(chunk)) {
            target->Write({chunk.data(), count});
        }
        target->Commit();
        return true;
    } catch (const IOException&) {
        return false;
    }
}

// Makes the file's second name, in place of another file that may stand there.
void Link(const std::string& path, const struct stat& file, const std::string& name) {
    struct stat old {};
    if (::lstat(name.c_str(), &old) == 0 && old.st_dev == file.st_dev && old.st_ino == file.st_ino) {
        return;
    }
    ::unlink(name.c_str());
    if (::link(path.c_str(), name.c_str()) != 0) {
        ThrowErrno("make a second name for " + path);
    }
}

bool MayDo(const std::string& path, int what) {
    return ::faccessat(AT_FDCWD, path.c_str(), what, AT_EACCESS) == 0;
}

// Where desktops mount what the user plugs in.
bool LiesUnderMountFolders(const std::string& path) {
    return path.starts_with("/media/") || path.starts_with("/run/media/") || path.starts_with("/mnt/");
}

} // namespace

PosixFileSystem::PosixFileSystem(FindFolder find, std::string mounts)
    : find_(std::move(find)), mounts_(std::move(mounts)) {
    std::signal(SIGXFSZ, SIG_IGN);
}

FileKind PosixFileSystem::Kind(const std::string& path) const {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) {
        return errno == ENOENT || errno == ENOTDIR ? FileKind::None : FileKind::Unknown;
    }
    const mode_t mode = status.st_mode;
    return S_ISREG(mode)   ? FileKind::Regular
           : S_ISDIR(mode) ? FileKind::Folder
           : S_ISLNK(mode) ? FileKind::Link
                           : FileKind::Other;
}

std::optional<FileStamp> PosixFileSystem::Stamp(const std::string& path) const {
    struct stat status {};
    const bool isFile = ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
    return isFile ? std::optional(StampOf(status)) : std::nullopt;
}

std::optional<std::string> PosixFileSystem::Resolve(const std::string& path) const {
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr), &std::free);
    if (resolved != nullptr) {
        return resolved.get();
    }
    // A link to what can't be looked at isn't one to nothing: whoever opens its target gets the error.
    try {
        const std::string target = std::filesystem::path(FollowLinks(path)).lexically_normal();
        return Kind(target) == FileKind::Unknown ? std::optional(target) : std::nullopt;
    } catch (const IOException&) {
        return std::nullopt;
    }
}

// Reads the kernel's table and touches no mounted file system, since one that has died would hang the
// program.
std::vector<Volume> PosixFileSystem::Volumes() const {
    std::vector<Volume> volumes{{"Root", "/"}};
    const std::unique_ptr<FILE, int (*)(FILE*)> table(::setmntent(mounts_.c_str(), "re"), &::endmntent);
    char line[2 * PATH_MAX];
    mntent mount{};
    while (table != nullptr && ::getmntent_r(table.get(), &mount, line, sizeof line) != nullptr) {
        const std::string root = mount.mnt_dir;
        const Volume volume{root.substr(root.rfind('/') + 1), root};
        // A second mount over the first shows in the table as well.
        if (LiesUnderMountFolders(root) &&
            std::find(volumes.begin(), volumes.end(), volume) == volumes.end()) {
            volumes.push_back(volume);
        }
    }
    return volumes;
}

bool PosixFileSystem::MakeFolder(const std::string& path) {
    return ::mkdir(path.c_str(), 0777) == 0;
}

std::unique_ptr<InputFile> PosixFileSystem::OpenForReading(const std::string& path) {
    return std::make_unique<PosixInputFile>(path);
}

std::unique_ptr<OutputFile> PosixFileSystem::CreateSafely(const std::string& path, LinkPolicy links) {
    return BeginSave(path, links);
}

bool PosixFileSystem::CanReplace(const std::string& path, LinkPolicy links) const {
    try {
        const auto target = FindSaveTarget(path, links);
        return MayDo(target.folder, W_OK | X_OK) || (target.old && MayDo(target.Path(), R_OK | W_OK));
    } catch (const IOException&) {
        return false;
    }
}

// Bytes of its own, since a save may write the file in place. A second name for what can't be copied: it
// needs no space on a full disk, no permission to read, and no time for a huge file.
void PosixFileSystem::KeepAs(const std::string& path, const std::string& copy) {
    const auto original = Resolve(path);
    struct stat status {};
    if (!original || ::stat(original->c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
        throw IOException("not a regular file: " + path);
    }
    const auto kindOfCopy = Kind(copy);
    if (kindOfCopy == FileKind::Folder) {
        throw IOException("a folder stands in the way: " + copy);
    }
    if (kindOfCopy == FileKind::Regular && Resolve(copy) == original) {
        throw IOException("the file itself stands under the name of its copy: " + copy);
    }
    if (status.st_size > largestCopy || !CopyFile(*this, *original, copy)) {
        Link(*original, status, copy);
    }
}

void PosixFileSystem::SweepLeftovers(const std::string& folder) {
    SweepTemporaryFiles(folder);
}

} // namespace tessarolyne

#include "machine/SafeFile.h"

#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <climits>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <linux/limits.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <vector>

namespace tessarolyne {

namespace {

// Whether a system call that failed with this error says that it can't be done here, as with a folder that
// isn't the user's or a file system without the means; and not that the disk is full or broken.
bool IsRefusal(int error) {
    constexpr std::array refusals = {EACCES, EPERM, EROFS, EBUSY, ETXTBSY, EXDEV, EINVAL, ENOSYS, EOPNOTSUPP};
    return std::find(refusals.begin(), refusals.end(), error) != refusals.end();
}

// All bytes, at the file's place.
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

// Brings the file or folder to the disk. False with errno; a file system that has no sync counts as done.
bool Sync(int file) {
    return Uninterrupted([&] { return ::fsync(file); }) == 0 || errno == EINVAL || errno == ENOSYS ||
           errno == EOPNOTSUPP;
}

// An empty file for the user alone, gone when it is closed.
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

// Whether the folder has the open file under this name, and it is a regular one.
bool IsNamed(int folder, const std::string& name, int file) {
    struct stat open {};
    struct stat named {};
    return ::fstat(file, &open) == 0 && S_ISREG(open.st_mode) &&
           ::fstatat(folder, name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 && open.st_dev == named.st_dev &&
           open.st_ino == named.st_ino;
}

constexpr std::size_t bufferSize = std::size_t{256} * 1024;

// From the start of both, with nothing of the second left behind it.
void Copy(int from, int to) {
    if (::lseek(from, 0, SEEK_SET) != 0 || ::lseek(to, 0, SEEK_SET) != 0) {
        ThrowErrno("go to the start of a file");
    }
    std::vector<char> piece(bufferSize);
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

// Puts the content of one open file into another that stays what it is, with its name, owner, permissions and
// further names. Its old content is kept aside meanwhile and put back if this fails; only the end of the
// process in the middle leaves it in part.
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

// As many as the kernel follows.
constexpr int longestChainOfLinks = 40;

std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == 0 || slash == std::string::npos ? "/" : path.substr(0, slash);
}

// What the link holds, made absolute.
std::string Followed(const std::string& link) {
    char target[PATH_MAX];
    const auto length = ::readlink(link.c_str(), target, sizeof target);
    if (length < 0) {
        ThrowErrno("read link " + link);
    }
    std::string text(target, static_cast<std::size_t>(length));
    return text.starts_with('/') ? text : FolderOf(link) + "/" + text;
}

// What stands at the path itself; nothing if nothing does.
std::optional<struct stat> Look(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) == 0) {
        return status;
    }
    if (errno != ENOENT) {
        ThrowErrno("look at " + path);
    }
    return std::nullopt;
}

// In a folder with the sticky bit, as /tmp, a name can be taken only from a file of one's own.
bool MayTakeName(const std::string& folder, const struct stat& file) {
    struct stat status {};
    if (::stat(folder.c_str(), &status) != 0) {
        ThrowErrno("look at the folder " + folder);
    }
    if ((status.st_mode & S_ISVTX) == 0) {
        return true;
    }
    const uid_t user = ::geteuid();
    return user == 0 || user == status.st_uid || user == file.st_uid;
}

// How Linux shows a POSIX access control list; it is copied as it is.
constexpr const char* accessList = "system.posix_acl_access";

bool SaysNone(int error) {
    return error == ENODATA || error == EOPNOTSUPP || error == ENOSYS;
}

// Empty for a file without one; nothing if it can't be told.
std::optional<std::string> ListOf(const std::string& path) {
    std::string list(XATTR_SIZE_MAX, '\0');
    const auto size = ::lgetxattr(path.c_str(), accessList, list.data(), list.size());
    if (size < 0) {
        return SaysNone(errno) ? std::optional(std::string()) : std::nullopt;
    }
    list.resize(static_cast<std::size_t>(size));
    return list;
}

// An empty list takes away what a new file may have from its folder. Where a sandbox is given a file, even
// that is refused, and there is nothing to take away.
bool SetList(int file, const std::string& list) {
    if (list.empty()) {
        return ::fremovexattr(file, accessList) == 0 ||
               (::fgetxattr(file, accessList, nullptr, 0) < 0 && SaysNone(errno));
    }
    return ::fsetxattr(file, accessList, list.data(), list.size(), 0) == 0;
}

struct stat Look(int file) {
    struct stat status {};
    if (::fstat(file, &status) != 0) {
        ThrowErrno("look at the temporary file");
    }
    return status;
}

// False if the file keeps another group. Whatever the error, it only says that they can't be given.
bool GiveTo(int file, const SaveTarget::Owner& old) {
    constexpr auto sameUser = static_cast<uid_t>(-1);
    const auto made = Look(file);
    if (made.st_uid != old.user && ::fchown(file, old.user, old.group) == 0) {
        return true;
    }
    return made.st_gid == old.group || ::fchown(file, sameUser, old.group) == 0;
}

// Gives a new, open file the owner, group, permissions and access control list of the file at the path that
// it is to replace, as far as the user may; what can't be had leaves it open to fewer people, never to more.
// False if more people could read it all the same, or if a list would be lost: it must not replace that file
// then.
bool TakeOverAccess(int made, const std::string& path, const SaveTarget::Owner& old) {
    const auto list = ListOf(path);
    const bool hasGroup = GiveTo(made, old);
    if (!list || (!list->empty() && !hasGroup) || !SetList(made, *list)) {
        return false;
    }
    mode_t permissions = old.permissions;
    if (!hasGroup) {
        // The new group isn't the one that was meant, and the old one's members are anybody now: both get
        // what both had.
        const mode_t both = (permissions >> 3U) & permissions & 07U;
        permissions = (permissions & 0700U) | (both << 3U) | both;
    }
    const mode_t has = Look(made).st_mode & 0777U;
    return has == permissions || ::fchmod(made, permissions) == 0 || (has & ~permissions) == 0;
}

constexpr std::string_view prefix = ".tessarolyne-save-";

enum class Locked { Yes, No, ByAnother };

// A file system without locks gives No: a save goes on there, and a sweep leaves its files alone.
Locked TryLock(int file) {
    if (Uninterrupted([&] { return ::flock(file, LOCK_EX | LOCK_NB); }) == 0) {
        return Locked::Yes;
    }
    return errno == EWOULDBLOCK ? Locked::ByAnother : Locked::No;
}

// A new, empty file with a name of the program's own, locked as long as this object lives so that a sweep
// knows it for a save under way. Removed when the object goes, unless it was renamed.
class TemporaryFile {
public:
    // Made in the open folder, which must outlive this. Nothing, with errno, where the folder takes no new
    // file; IOException for any other failure.
    static std::unique_ptr<TemporaryFile> Make(int folder, mode_t permissions) {
        constexpr int mostNames = 10000;
        constexpr int flags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        for (int number = 0; number < mostNames; ++number) {
            const std::string name = std::string(prefix) + std::to_string(number);
            Descriptor file(
                Uninterrupted([&] { return ::openat(folder, name.c_str(), flags, permissions); }));
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
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        // A second time, since nobody hears of a failure and the next chance is the next start.
        for (int times = 0; times < 2 && !name_.empty(); ++times) {
            if (::unlinkat(folder_, name_.c_str(), 0) == 0) {
                name_.clear();
            }
        }
    }

    int Number() const { return *file_; }

    // Gives the file its final name. False with errno.
    bool TakeName(const std::string& name) {
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

private:
    TemporaryFile(int folder, std::string name, Descriptor file)
        : folder_(folder), name_(std::move(name)), file_(std::move(file)) {}

    // False if a sweep took the new file for a leftover in the moment before it was locked.
    bool Lock() {
        if (TryLock(*file_) == Locked::ByAnother) {
            return false;
        }
        if (Look(*file_).st_nlink > 0 || IsNamed(folder_, name_, *file_)) {
            return true;
        }
        name_.clear(); // it may be another save's by now
        return false;
    }

    int folder_;
    std::string name_; // empty once renamed
    Descriptor file_;
};

class SafeFile final : public OutputFile {
public:
    SafeFile(const std::string& path, LinkPolicy links, const std::string& like)
        : target_(FindSaveTarget(path, links)),
          // A place to name files in: it need not be readable for that.
          folder_(Uninterrupted(
              [&] { return ::open(target_.folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC); })) {
        if (!folder_.IsOpen()) {
            ThrowErrno("open the folder " + target_.folder);
        }
        buffer_.reserve(bufferSize);
        SaveTarget model = target_;
        if (!like.empty()) {
            model = FindSaveTarget(like, LinkPolicy::ReplaceTarget);
            target_.old.reset(); // may be open to more people, so it can't be written in place
        }
        // Closed to others until it has the permissions of the file that it is to be like.
        temporary_ = TemporaryFile::Make(*folder_, model.old ? 0600 : 0666);
        if (temporary_ != nullptr &&
            (!model.old || TakeOverAccess(temporary_->Number(), model.Path(), *model.old))) {
            return;
        }
        if (!target_.old) {
            throw IOException("no file can be made in " + target_.folder);
        }
        temporary_.reset();
        aside_ = NamelessFile();
    }

    void Write(std::string_view bytes) override {
        OrEnd([&] {
            if (bytes.size() > bufferSize - buffer_.size()) {
                WriteAll(Content(), buffer_);
                buffer_.clear();
            }
            if (bytes.size() > bufferSize) {
                WriteAll(Content(), bytes);
            } else {
                buffer_.append(bytes);
            }
        });
    }

    void Commit() override {
        OrEnd([this] {
            WriteAll(Content(), buffer_);
            Finish();
        });
        End();
    }

private:
    int Content() const { return temporary_ == nullptr ? *aside_ : temporary_->Number(); }

    template <class Step>
    void OrEnd(Step step) {
        if (temporary_ == nullptr && !aside_.IsOpen()) {
            throw IOException("this save has ended: " + target_.name);
        }
        try {
            step();
        } catch (...) {
            End();
            throw;
        }
    }

    void Finish() {
        if (temporary_ == nullptr) {
            Overwrite(*folder_, target_.name, *aside_);
            return;
        }
        if (!Sync(temporary_->Number())) {
            ThrowErrno("sync " + target_.name);
        }
        if (temporary_->TakeName(target_.name)) {
            SyncFolder();
        } else if (target_.old && IsRefusal(errno)) {
            Overwrite(*folder_, target_.name, temporary_->Number());
        } else {
            ThrowErrno("rename the temporary file");
        }
    }

    // A failure here isn't told: the file is saved, and a power cut in the next seconds would leave the old
    // or the new one, whole in either case.
    void SyncFolder() const {
        const Descriptor folder(
            Uninterrupted([&] { return ::openat(*folder_, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
        if (folder.IsOpen()) {
            Sync(*folder);
        }
    }

    void End() {
        temporary_.reset();
        aside_ = Descriptor();
    }

    SaveTarget target_;
    Descriptor folder_;
    // One of these takes the bytes; none after a Commit or a failure.
    std::unique_ptr<TemporaryFile> temporary_;
    Descriptor aside_;
    std::string buffer_;
};

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

std::string FollowLinks(const std::string& path) {
    std::string place = path;
    struct stat status {};
    for (int count = 0; ::lstat(place.c_str(), &status) == 0 && S_ISLNK(status.st_mode); ++count) {
        if (count == longestChainOfLinks) {
            throw IOException("too many links: " + path);
        }
        place = Followed(place);
    }
    return place;
}

SaveTarget FindSaveTarget(const std::string& path, LinkPolicy links) {
    const std::string place = links == LinkPolicy::ReplaceTarget ? FollowLinks(path) : path;
    const auto status = Look(place);
    SaveTarget target{FolderOf(place), place.substr(place.rfind('/') + 1), std::nullopt};
    if (target.name.empty() || target.name == "." || target.name == "..") {
        throw IOException("not the name of a file: " + place);
    }
    if (!status) {
        return target;
    }
    if (S_ISLNK(status->st_mode)) {
        if (!MayTakeName(target.folder, *status)) {
            throw IOException("another user's link, in a folder that keeps it: " + place);
        }
        return target;
    }
    if (!S_ISREG(status->st_mode)) {
        throw IOException("not a regular file: " + place);
    }
    if (::faccessat(AT_FDCWD, place.c_str(), W_OK, AT_EACCESS) != 0) {
        ThrowErrno("may not write " + place);
    }
    target.old = SaveTarget::Owner{status->st_mode & 0777U, status->st_uid, status->st_gid};
    return target;
}

std::unique_ptr<OutputFile> BeginSave(const std::string& path, LinkPolicy links, const std::string& like) {
    return std::make_unique<SafeFile>(path, links, like);
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

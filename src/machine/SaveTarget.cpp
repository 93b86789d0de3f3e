#include "machine/SaveTarget.h"

#include "machine/Descriptor.h"

#include <climits>
#include <fcntl.h>
#include <sys/stat.h>

namespace tessarolyne {

namespace {

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

} // namespace tessarolyne

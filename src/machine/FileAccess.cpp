#include "machine/FileAccess.h"

#include "machine/Descriptor.h"

#include <cstddef>
#include <linux/limits.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace tessarolyne {

namespace {

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

} // namespace

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

} // namespace tessarolyne

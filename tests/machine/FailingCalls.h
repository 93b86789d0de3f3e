#pragma once

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <map>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>
#include <vector>

namespace tessarolyne {

// Stands between the sources of this program and the system: notes their calls as long as it lives, and lets
// them fail or the process die as it is told. One at a time.
class FailingCalls {
public:
    FailingCalls() { living = this; }
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;
    ~FailingCalls() { living = nullptr; }

    static constexpr int kill = -1; // in place of an error

    std::map<std::string, int> refused; // calls that always fail, with their errors
    int failing = -1;                   // the number of the one that fails, from 0
    int error = 0;

    std::vector<std::string> made; // also those that failed

    static inline FailingCalls* living = nullptr;

    // Whether this call, noted here, fails, with errno.
    bool Fails(const char* call) {
        const bool now = static_cast<int>(made.size()) == failing;
        made.emplace_back(call);
        if (now && error == kill) {
            std::raise(SIGKILL);
        }
        const auto found = refused.find(call);
        if (now || found != refused.end()) {
            errno = now ? error : found->second;
        }
        return now || found != refused.end();
    }
};

} // namespace tessarolyne

static bool Fails(const char* call) {
    auto* const living = tessarolyne::FailingCalls::living;
    return living != nullptr && living->Fails(call);
}

// What the linker calls by these names in place of the system's.
extern "C" {

#define STANDS_FOR(result, call, parameters, arguments)                                                      \
    result __real_##call parameters;                                                                         \
    result __wrap_##call parameters {                                                                        \
        return Fails(#call) ? -1 : __real_##call arguments;                                                  \
    }
STANDS_FOR(int, faccessat, (int a, const char* b, int c, int d), (a, b, c, d))
STANDS_FOR(int, fchmod, (int a, mode_t b), (a, b))
STANDS_FOR(int, fchown, (int a, uid_t b, gid_t c), (a, b, c))
STANDS_FOR(int, flock, (int a, int b), (a, b))
STANDS_FOR(int, fremovexattr, (int a, const char* b), (a, b))
STANDS_FOR(int, fsetxattr, (int a, const char* b, const void* c, size_t d, int e), (a, b, c, d, e))
STANDS_FOR(int, fstat, (int a, struct stat* b), (a, b))
STANDS_FOR(int, fstatat, (int a, const char* b, struct stat* c, int d), (a, b, c, d))
STANDS_FOR(int, fsync, (int a), (a))
STANDS_FOR(int, ftruncate, (int a, off_t b), (a, b))
STANDS_FOR(ssize_t, lgetxattr, (const char* a, const char* b, void* c, size_t d), (a, b, c, d))
STANDS_FOR(int, link, (const char* a, const char* b), (a, b))
STANDS_FOR(off_t, lseek, (int a, off_t b, int c), (a, b, c))
STANDS_FOR(int, lstat, (const char* a, struct stat* b), (a, b))
STANDS_FOR(int, memfd_create, (const char* a, unsigned b), (a, b))
// The last argument isn't looked at where none was given; so with openat.
STANDS_FOR(int, open, (const char* a, int b, mode_t c), (a, b, c))
STANDS_FOR(ssize_t, read, (int a, void* b, size_t c), (a, b, c))
STANDS_FOR(ssize_t, readlink, (const char* a, char* b, size_t c), (a, b, c))
STANDS_FOR(int, renameat, (int a, const char* b, int c, const char* d), (a, b, c, d))
STANDS_FOR(int, stat, (const char* a, struct stat* b), (a, b))
STANDS_FOR(int, unlink, (const char* a), (a))
STANDS_FOR(int, unlinkat, (int a, const char* b, int c), (a, b, c))

int __real_openat(int folder, const char* name, int flags, mode_t mode);
int __wrap_openat(int folder, const char* name, int flags, mode_t mode) {
    const bool looksForLinks = (flags & (O_NOFOLLOW | O_CREAT)) == O_NOFOLLOW;
    return Fails(looksForLinks ? "openat, no link" : "openat") ? -1
                                                               : __real_openat(folder, name, flags, mode);
}

// In pieces, as the system may.
ssize_t __real_write(int file, const void* bytes, size_t size);
ssize_t __wrap_write(int file, const void* bytes, size_t size) {
    constexpr size_t longest = 100'000;
    return Fails("write") ? -1 : __real_write(file, bytes, std::min(size, longest));
}
}

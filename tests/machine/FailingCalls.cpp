#include "machine/FailingCalls.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <sys/stat.h>
#include <sys/types.h>

namespace tessarolyne {

namespace {

FailingCalls* living = nullptr;

bool Fails(const char* call) {
    const int error = living == nullptr ? 0 : living->Note(call);
    errno = error == 0 ? errno : error;
    return error != 0;
}

} // namespace

FailingCalls::FailingCalls() {
    living = this;
}
FailingCalls::~FailingCalls() {
    living = nullptr;
}
FailingCalls* Failing() {
    return living;
}

int FailingCalls::Note(const char* call) {
    made.emplace_back(call);
    if (static_cast<int>(made.size()) - 1 == failing) {
        if (error == kill) {
            std::raise(SIGKILL);
        }
        return error;
    }
    const auto found = refused.find(call);
    return found == refused.end() ? 0 : found->second;
}

} // namespace tessarolyne

// What the linker calls by these names in place of the system's.
extern "C" {

#define STANDS_FOR(result, call, parameters, arguments)                                                      \
    result __real_##call parameters;                                                                         \
    result __wrap_##call parameters {                                                                        \
        return tessarolyne::Fails(#call) ? -1 : __real_##call arguments;                                     \
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
STANDS_FOR(ssize_t, read, (int a, void* b, size_t c), (a, b, c))
STANDS_FOR(ssize_t, readlink, (const char* a, char* b, size_t c), (a, b, c))
STANDS_FOR(int, renameat, (int a, const char* b, int c, const char* d), (a, b, c, d))
STANDS_FOR(int, stat, (const char* a, struct stat* b), (a, b))
STANDS_FOR(int, unlink, (const char* a), (a))
STANDS_FOR(int, unlinkat, (int a, const char* b, int c), (a, b, c))

int __real_open(const char* path, int flags, ...);
int __wrap_open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const auto permissions = va_arg(rest, mode_t); // not looked at where none was given
    va_end(rest);
    return tessarolyne::Fails("open") ? -1 : __real_open(path, flags, permissions);
}

int __real_openat(int folder, const char* path, int flags, ...);
int __wrap_openat(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const auto permissions = va_arg(rest, mode_t);
    va_end(rest);
    return tessarolyne::Fails("openat") ? -1 : __real_openat(folder, path, flags, permissions);
}

// In pieces, as the system may.
ssize_t __real_write(int file, const void* bytes, size_t size);
ssize_t __wrap_write(int file, const void* bytes, size_t size) {
    const auto* calls = tessarolyne::Failing();
    const size_t most = calls == nullptr ? size : calls->longestWrite;
    return tessarolyne::Fails("write") ? -1 : __real_write(file, bytes, std::min(size, most));
}
}

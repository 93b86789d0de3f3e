#include "machine/SystemClock.h"

#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <fstream>
#include <limits>
#include <sys/resource.h>
#include <system_error>
#include <unistd.h>

namespace tessarolyne {

namespace {

using Path = std::filesystem::path;

constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

std::uint64_t Left(std::uint64_t limit, std::uint64_t used) {
    return limit > used ? limit - used : 0;
}

// The number at the start of a file; nothing for "max", a missing file or anything else.
std::optional<std::uint64_t> NumberIn(const Path& file) {
    std::ifstream stream(file);
    std::uint64_t value = 0;
    return stream >> value ? std::optional(value) : std::nullopt;
}

// The number behind `name` in a file of lines "name number …".
std::optional<std::uint64_t> FieldIn(const Path& file, std::string_view name) {
    std::ifstream stream(file);
    std::string word;
    while (stream >> word) {
        std::uint64_t value = 0;
        if (word == name) {
            return stream >> value ? std::optional(value) : std::nullopt;
        }
        stream.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    return std::nullopt;
}

// The same, from kilobytes to bytes.
std::optional<std::uint64_t> KilobytesIn(const Path& file, std::string_view name) {
    const auto kilobytes = FieldIn(file, name);
    return kilobytes ? std::optional(*kilobytes * 1024) : std::nullopt;
}

// What one control group leaves. Cached file pages count as used there, but give way.
std::uint64_t LeftInGroup(
    const Path& group, const char* limitName, const char* usedName, const char* cacheName) {
    const auto limit = NumberIn(group / limitName);
    if (!limit) {
        return unlimited;
    }
    const std::uint64_t used = NumberIn(group / usedName).value_or(0);
    return Left(*limit, Left(used, FieldIn(group / "memory.stat", cacheName).value_or(0)));
}

// The least that a group and those above it leave. Inside a container the group's path may start outside of
// what is mounted, so the mount's own root is looked at in any case.
std::uint64_t LeastInGroups(const Path& mount, Path group, bool isVersion2) {
    std::uint64_t least = unlimited;
    for (group = group.relative_path();; group = group.parent_path()) {
        const Path directory = mount / group;
        least = std::min(least, isVersion2
                                    ? LeftInGroup(directory, "memory.max", "memory.current", "inactive_file")
                                    : LeftInGroup(directory, "memory.limit_in_bytes", "memory.usage_in_bytes",
                                          "total_inactive_file"));
        if (group.empty()) {
            return least;
        }
    }
}

// Lines of /proc/self/cgroup: "0::/path" for version 2, "number:controllers:/path" for version 1.
std::uint64_t LeftInGroups(const Path& root) {
    std::ifstream stream(root / "proc/self/cgroup");
    std::uint64_t least = unlimited;
    for (std::string line; std::getline(stream, line);) {
        const auto fields = Split(line, ":");
        if (fields.size() < 3) {
            continue;
        }
        const Path group = line.substr(fields[0].size() + fields[1].size() + 2);
        const auto controllers = Split(fields[1], ",");
        if (fields[1].empty()) {
            least = std::min(least, LeastInGroups(root / "sys/fs/cgroup", group, true));
        } else if (std::find(controllers.begin(), controllers.end(), "memory") != controllers.end()) {
            least = std::min(least, LeastInGroups(root / "sys/fs/cgroup/memory", group, false));
        }
    }
    return least;
}

// What a resource limit leaves beside the memory of that name. The resources are an enumeration to glibc and
// numbers elsewhere.
std::uint64_t LeftOf(decltype(RLIMIT_AS) resource, const Path& root, std::string_view used) {
    rlimit limit{};
    const bool isLimited = getrlimit(resource, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY;
    return isLimited ? Left(limit.rlim_cur, KilobytesIn(root / "proc/self/status", used).value_or(0))
                     : unlimited;
}

constexpr std::array watched = {SIGTERM, SIGHUP, SIGINT};

// What the handler can reach: a pipe, since writing to one is among the few things that a handler may do.
int readEnd = -1;
int writeEnd = -1;
std::array<struct sigaction, watched.size()> before;

extern "C" void NoteSignal(int number) {
    const int error = errno;
    const auto byte = static_cast<unsigned char>(number);
    [[maybe_unused]] const auto written = write(writeEnd, &byte, 1); // full: signals enough are waiting
    errno = error;
}

} // namespace

std::int64_t SystemClock::Milliseconds() const {
    const auto since = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(since).count();
}

Date SystemClock::Now() const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return Date{
        local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

std::uint64_t SystemMemory::AvailableBytes() const {
    // Where nothing can be read, as much as a small machine has.
    constexpr std::uint64_t fallback = std::uint64_t{1} << 30;
    const std::uint64_t least =
        std::min({KilobytesIn(root_ / "proc/meminfo", "MemAvailable:").value_or(unlimited),
            LeftInGroups(root_), LeftOf(RLIMIT_AS, root_, "VmSize:"), LeftOf(RLIMIT_DATA, root_, "VmData:")});
    return least == unlimited ? fallback : least;
}

Signals::Signals() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe");
    }
    readEnd = ends[0];
    writeEnd = ends[1];
    struct sigaction action = {};
    action.sa_handler = NoteSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < watched.size(); ++i) {
        sigaction(watched[i], &action, &before[i]);
        if (before[i].sa_handler == SIG_IGN) {
            sigaction(watched[i], &before[i], nullptr); // as nohup started us
        }
    }
}

Signals::~Signals() {
    for (std::size_t i = 0; i < watched.size(); ++i) {
        sigaction(watched[i], &before[i], nullptr);
    }
    close(readEnd);
    close(writeEnd);
    readEnd = writeEnd = -1;
}

int Signals::Descriptor() const {
    return readEnd;
}

int Signals::Take() {
    unsigned char byte = 0;
    return read(readEnd, &byte, 1) == 1 ? byte : 0;
}

} // namespace tessarolyne

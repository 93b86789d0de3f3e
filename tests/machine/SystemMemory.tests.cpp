#include "machine/SystemMemory.h"

#include <doctest/doctest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include <sys/resource.h>
#include <unistd.h>

using namespace tessarolyne;

namespace {

constexpr std::uint64_t megabyte = 1024 * 1024;

// A root directory with files of the kernel, gone with the object.
class FakeRoot {
public:
    FakeRoot() { std::filesystem::create_directories(path); }
    ~FakeRoot() { std::filesystem::remove_all(path); }
    FakeRoot(const FakeRoot&) = delete;
    FakeRoot& operator=(const FakeRoot&) = delete;

    void Write(const std::string& name, const std::string& text) const {
        std::filesystem::create_directories((path / name).parent_path());
        std::ofstream(path / name) << text;
    }

    const std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("SystemMemory.tests." + std::to_string(getpid()));
};

} // namespace

TEST_CASE("The least of machine and control groups is what is available") {
    const FakeRoot root;
    const SystemMemory memory(root.path);
    CHECK(memory.AvailableBytes() == 1024 * megabyte); // nothing known

    root.Write("proc/meminfo", "MemTotal:       9000000 kB\nMemFree:  1 kB\nMemAvailable:    8192000 kB\n");
    CHECK(memory.AvailableBytes() == 8000 * megabyte);

    SUBCASE("version 2: a group above may be narrower, and cached files give way") {
        root.Write("proc/self/cgroup", "0::/user/app\n");
        root.Write("sys/fs/cgroup/user/app/memory.max", "max\n");
        root.Write("sys/fs/cgroup/user/app/memory.current", std::to_string(50 * megabyte));
        CHECK(memory.AvailableBytes() == 8000 * megabyte);
        root.Write("sys/fs/cgroup/user/memory.max", std::to_string(500 * megabyte));
        root.Write("sys/fs/cgroup/user/memory.current", std::to_string(200 * megabyte));
        root.Write("sys/fs/cgroup/user/memory.stat",
            "anon 7\ninactive_file " + std::to_string(80 * megabyte) + "\nactive_file 9\n");
        CHECK(memory.AvailableBytes() == 380 * megabyte);
        root.Write("sys/fs/cgroup/user/app/memory.max", std::to_string(40 * megabyte));
        CHECK(memory.AvailableBytes() == 0);
    }
    SUBCASE("version 2 inside a container, where only the mounted root exists") {
        root.Write("proc/self/cgroup", "0::/../outside/app\n");
        root.Write("sys/fs/cgroup/memory.max", std::to_string(300 * megabyte));
        root.Write("sys/fs/cgroup/memory.current", std::to_string(100 * megabyte));
        CHECK(memory.AvailableBytes() == 200 * megabyte);
    }
    SUBCASE("version 1, among other controllers") {
        root.Write("proc/self/cgroup", "3:cpu,cpuacct:/app\n2:hugetlb,memory:/app\n0::/\nbroken\n");
        root.Write("sys/fs/cgroup/memory/app/memory.limit_in_bytes", std::to_string(700 * megabyte));
        root.Write("sys/fs/cgroup/memory/app/memory.usage_in_bytes", std::to_string(600 * megabyte));
        root.Write("sys/fs/cgroup/memory/app/memory.stat", "total_inactive_file 1048576\n");
        CHECK(memory.AvailableBytes() == 101 * megabyte);
    }
}

TEST_CASE("A limit on the process's data counts, less what the process has") {
    // So wide that it doesn't disturb the test itself, whatever a sanitizer maps.
    constexpr std::uint64_t limit = std::uint64_t{1} << 50;
    const FakeRoot root;
    root.Write("proc/meminfo", "MemAvailable:    8192000 kB\n");
    root.Write("proc/self/status",
        "VmSize:\t  900000 kB\nVmData:\t  " + std::to_string(limit / 1024 - 1'024'000) + " kB\n");
    rlimit before{};
    REQUIRE(getrlimit(RLIMIT_DATA, &before) == 0);
    rlimit narrow = before;
    narrow.rlim_cur = limit;
    REQUIRE(setrlimit(RLIMIT_DATA, &narrow) == 0);
    const std::uint64_t available = SystemMemory(root.path).AvailableBytes();
    REQUIRE(setrlimit(RLIMIT_DATA, &before) == 0);
    CHECK(available == 1000 * megabyte);
    CHECK(SystemMemory().AvailableBytes() > 0);
}

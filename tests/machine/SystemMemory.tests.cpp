#include "machine/SystemClock.h"
#include "machine/TemporaryFolder.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

namespace {

constexpr std::uint64_t megabyte = 1024 * 1024;

using Files = std::vector<std::pair<std::string, std::string>>;

// What is available where the kernel shows these files.
std::uint64_t AvailableWith(const Files& files) {
    const TemporaryFolder root;
    for (const auto& [name, text] : files) {
        std::filesystem::create_directories(std::filesystem::path(root / name).parent_path());
        WriteFile(root / name, text);
    }
    return SystemMemory(root.Path()).AvailableBytes();
}

std::string Megabytes(std::uint64_t count) {
    return std::to_string(count * megabyte);
}

} // namespace

TEST_CASE("The least of machine and control groups is what is available") {
    const Files narrow = {{"proc/self/cgroup", "0::/user/app\n"},
        {"sys/fs/cgroup/user/app/memory.max", "max\n"},
        {"sys/fs/cgroup/user/app/memory.current", Megabytes(50)},
        {"sys/fs/cgroup/user/memory.max", Megabytes(500)},
        {"sys/fs/cgroup/user/memory.current", Megabytes(200)},
        {"sys/fs/cgroup/user/memory.stat", "anon 7\ninactive_file " + Megabytes(80) + "\nactive_file 9\n"}};
    auto exceeded = narrow;
    exceeded[1].second = Megabytes(40);
    const std::pair<Files, std::uint64_t> rows[] = {{{}, 8000},
        {narrow, 380}, // a group above, whose cached files give way
        {exceeded, 0},
        {{{"proc/self/cgroup", "0::/../outside/app\n"}, // in a container only the mounted root exists
             {"sys/fs/cgroup/memory.max", Megabytes(300)}, {"sys/fs/cgroup/memory.current", Megabytes(100)}},
            200}};
    for (auto [files, available] : rows) {
        files.push_back({"proc/meminfo", "MemTotal: 9000000 kB\nMemFree: 1 kB\nMemAvailable: 8192000 kB\n"});
        CHECK(AvailableWith(files) == available * megabyte);
    }
}

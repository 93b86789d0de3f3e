#include "machine/PosixFileSystem.h"
#include "machine/FailingCalls.h"
#include "machine/TemporaryFolder.h"
#include "platform/FolderItem.h"

#include <doctest/doctest.h>

#include <array>
#include <sstream>
#include <sys/stat.h>
#include <sys/sysmacros.h>

using namespace tessarolyne;

namespace {

namespace fs = std::filesystem;

struct Disk : TemporaryFolder {
    PosixFileSystem files;
    std::string Canonical(const std::string& name) const { return fs::canonical(Path()) / name; }
};

} // namespace

TEST_CASE("A file is read in pieces of any size, and what is no regular file is refused without waiting") {
    Disk disk;
    const std::string text = std::string(50'000, 'a') + std::string(50'000, 'b');
    WriteFile(disk / "f", text);
    const auto file = disk.files.OpenForReading(disk / "f");
    CHECK(file->Stamp() == disk.files.Stamp(disk / "f"));
    std::string read;
    std::array<char, 777> piece;
    for (auto count = file->Read(piece); count > 0; count = file->Read(piece)) {
        read.append(piece.data(), count);
        std::ofstream(disk / "f", std::ios::app) << "more"; // goes on growing while it is read
        REQUIRE(read.size() <= text.size());
    }
    CHECK(read == text);
    CHECK_FALSE(file->Stamp() == disk.files.Stamp(disk / "f"));
    CHECK_FALSE(disk.files.Stamp(disk.Path()).has_value());
    REQUIRE(::mkfifo((disk / "fifo").c_str(), 0666) == 0);
    fs::create_symlink("none", disk / "dangling");
    // A device of the test's own, where it may make one.
    const bool hasDevice = ::mknod((disk / "device").c_str(), S_IFCHR | 0666, makedev(1, 5)) == 0;
    for (const auto& path : {disk / "fifo", disk / "none", disk / "dangling", disk.Path(),
             disk / (hasDevice ? "device" : "none")}) {
        CAPTURE(path);
        CHECK_THROWS_AS(disk.files.OpenForReading(path), IOException);
    }
}

TEST_CASE("A path is looked at without following a link, and only what isn't there is none") {
    Disk disk;
    fs::create_directory(disk / "shut");
    WriteFile(disk / "shut/f", "settings");
    fs::create_symlink(disk / "shut/f", disk / "a");
    fs::create_symlink("a", disk / "b");
    fs::create_symlink("loop", disk / "loop");
    REQUIRE(::mkfifo((disk / "fifo").c_str(), 0666) == 0);
    const std::pair<std::string, FileKind> rows[] = {{"shut/f", FileKind::Regular}, {"b", FileKind::Link},
        {"loop", FileKind::Link}, {"shut", FileKind::Folder}, {"fifo", FileKind::Other},
        {"none", FileKind::None}, {"shut/f/none", FileKind::None},
        {std::string(300, 'x'), FileKind::Unknown}};
    for (const auto& [name, kind] : rows) {
        CAPTURE(name);
        CHECK(disk.files.Kind(disk / name) == kind);
    }
    CHECK(disk.files.Resolve(disk / "b") == disk.Canonical("shut/f"));
    CHECK_FALSE(disk.files.Resolve(disk / "loop").has_value());
    {
        FailingCalls calls; // the superuser may look at everything
        calls.refused = {{"lstat", EACCES}};
        CHECK(disk.files.Kind(disk / "shut/f") == FileKind::Unknown);
    }
}

TEST_CASE("A file that is kept keeps its bytes when a save replaces it, and replaces what was kept before") {
    Disk disk;
    WriteFile(disk / "f", "first");
    for (const std::string text : {"second", "third"}) {
        for (const char* refused : {"nothing", "read"}) { // what can't be read is kept as well
            FailingCalls calls;
            calls.refused = {{refused, EACCES}};
            disk.files.KeepAs(disk / "f", disk / "f.bad");
            disk.files.KeepAs(disk / "f", disk / "f.bad");
        }
        const auto kept = ReadFile(disk / "f");
        const auto save = disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget);
        save->Write(text);
        save->Commit();
        CHECK(ReadFile(disk / "f.bad") == kept);
        CHECK(ReadFile(disk / "f") == text);
    }
    CHECK_THROWS_AS(disk.files.KeepAs(disk / "none", disk / "x"), IOException);
    fs::create_directory(disk / "d");
    CHECK_THROWS_AS(disk.files.KeepAs(disk / "f", disk / "d"), IOException);
}

TEST_CASE("A file is kept apart from itself, open to no more people, and never lost to its own copy") {
    Disk disk;
    const auto file = disk / "f";
    const auto bad = disk / "f.bad";
    constexpr auto ownersOnly = fs::perms::owner_read | fs::perms::owner_write;
    WriteFile(file, "only");
    fs::permissions(file, ownersOnly);
    fs::create_symlink(file, bad);
    disk.files.KeepAs(file, bad);
    CHECK(fs::is_regular_file(fs::symlink_status(bad)));
    CHECK(fs::status(bad).permissions() == ownersOnly);
    fs::remove(bad);
    fs::create_hard_link(file, bad);
    disk.files.KeepAs(file, bad);
    CHECK(fs::hard_link_count(file) == 1); // a save may write the file in place
    fs::permissions(bad, fs::perms::all);
    {
        FailingCalls calls;
        calls.refused = {{"renameat", EBUSY}};
        disk.files.KeepAs(file, bad);
    }
    CHECK(fs::status(bad).permissions() == ownersOnly);
    fs::remove(file);
    fs::create_symlink(bad, file);
    CHECK_THROWS_AS(disk.files.KeepAs(file, bad), IOException);
    CHECK(ReadFile(bad) == "only");
}

#include "machine/PosixFileSystem.h"
#include "machine/TemporaryFolder.h"
#include "platform/IOException.h"

#include <doctest/doctest.h>

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tessarolyne;

namespace {

namespace fs = std::filesystem;

struct Disk : TemporaryFolder {
    PosixFileSystem files;

    void Save(
        const std::string& name, const std::string& text, LinkPolicy links = LinkPolicy::ReplaceTarget) {
        const auto file = files.CreateSafely(*this / name, links);
        file->Write(text);
        file->Commit();
    }
    std::string Read(const std::string& name) const { return ReadFile(*this / name); }
    mode_t Permissions(const std::string& name) const {
        struct stat status {};
        REQUIRE(::stat((*this / name).c_str(), &status) == 0);
        return status.st_mode & 07777U;
    }
};

// Runs in a process that may be changed for good, and as an ordinary user if need be.
bool HoldsInChild(bool asOrdinaryUser, const std::function<bool()>& check) {
    const pid_t process = ::fork();
    if (process == 0) {
        const bool ready =
            !asOrdinaryUser || ::geteuid() != 0 || (::setgid(65534) == 0 && ::setuid(65534) == 0);
        std::_Exit(ready && check() ? 0 : 1);
    }
    int status = 0;
    return ::waitpid(process, &status, 0) == process && status == 0;
}

} // namespace

TEST_CASE("A save has the old file's permissions, and a new file those that the user's mask leaves") {
    Disk disk;
    const mode_t mask = ::umask(027);
    disk.Save("new", "1");
    ::umask(mask);
    CHECK(disk.Permissions("new") == 0640);
    for (const mode_t permissions : {0600U, 0666U, 0755U}) {
        ::chmod((disk / "new").c_str(), permissions);
        disk.Save("new", "2");
        CHECK(disk.Permissions("new") == permissions);
    }
    CHECK(disk.Read("new") == "2");
}

TEST_CASE("A save without its end, or after a failed step, leaves the old file and nothing else") {
    Disk disk;
    disk.Save("f", "old");
    disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget)->Write("new");
    CHECK(disk.Read("f") == "old");
    CHECK(HoldsInChild(false, [&] {
        const PosixFileSystem signalsSet;
        const rlimit limit{1000, 1000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const auto file = disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget);
        bool refused = false;
        try {
            file->Write(std::string(1'000'000, 'x'));
        } catch (const IOException&) {
            refused = true;
        }
        const bool nothingLeft = NamesIn(disk.Path()).size() == 1;
        try {
            file->Commit();
        } catch (const IOException&) {
            return refused && nothingLeft;
        }
        return false;
    }));
    CHECK(disk.Read("f") == "old");
    CHECK(NamesIn(disk.Path()) == std::set<std::string>{"f"});
}

TEST_CASE("A link stays and its target is replaced, unless the link itself is to go") {
    Disk disk;
    fs::create_directory(disk / "folder");
    disk.Save("folder/target", "old");
    fs::create_symlink("folder/second", disk / "first");
    fs::create_symlink("target", disk / "folder/second");
    disk.Save("first", "new");
    CHECK(disk.Read("folder/target") == "new");
    CHECK(fs::is_symlink(disk / "first"));
    CHECK(fs::is_symlink(disk / "folder/second"));
    CHECK(NamesIn(disk / "folder") == std::set<std::string>{"second", "target"});

    fs::create_symlink("folder/none", disk / "dangling");
    disk.Save("dangling", "made");
    CHECK(disk.Read("folder/none") == "made");
    CHECK(fs::is_symlink(disk / "dangling"));

    disk.Save("first", "itself", LinkPolicy::ReplaceLink);
    CHECK(fs::is_regular_file(fs::symlink_status(disk / "first")));
    CHECK(disk.Read("first") == "itself");
    CHECK(disk.Read("folder/target") == "new");
}

TEST_CASE("What is no writable regular file is refused at once, with nothing made") {
    Disk disk;
    fs::create_directory(disk / "folder");
    REQUIRE(::mkfifo((disk / "fifo").c_str(), 0666) == 0);
    fs::create_symlink("/dev/null", disk / "device");
    fs::create_symlink("loop", disk / "loop");
    for (const char* name : {"folder", "fifo", "device", "loop", "none/f", "fifo/f"}) {
        CAPTURE(name);
        CHECK_THROWS_AS(disk.Save(name, "x"), IOException);
        CHECK_FALSE(disk.files.CanReplace(disk / name, LinkPolicy::ReplaceTarget));
    }
    CHECK(disk.files.CanReplace(disk / "loop", LinkPolicy::ReplaceLink));
    CHECK(disk.files.CanReplace(disk / "new", LinkPolicy::ReplaceTarget));
    CHECK(NamesIn(disk.Path()).size() == 4);

    disk.Save("locked", "old");
    disk.Save("shut", "old");
    ::chmod((disk / "locked").c_str(), 0444);
    ::chmod(disk.Path().c_str(), 0777);
    CHECK(HoldsInChild(true, [&] {
        try {
            disk.Save("locked", "new");
        } catch (const IOException&) {
            return !disk.files.CanReplace(disk / "locked", LinkPolicy::ReplaceTarget);
        }
        return false;
    }));
    ::chmod((disk / "shut").c_str(), 0666);
    const auto keptFromOthers = [&](mode_t folder, const char* name) {
        ::chmod(disk.Path().c_str(), folder);
        return ::geteuid() != 0 || HoldsInChild(true, [&] {
            return !disk.files.CanReplace(disk / name, LinkPolicy::ReplaceLink);
        });
    };
    CHECK(keptFromOthers(0755, "new"));
    CHECK(keptFromOthers(01777, "shut"));
    CHECK(keptFromOthers(01777, "loop"));
    ::chmod(disk.Path().c_str(), 0755);
    CHECK(disk.Read("locked") == "old");
}

TEST_CASE("Another user's file that is replaced is opened to no group more than to everybody") {
    if (::geteuid() != 0) {
        MESSAGE("skipped: only the superuser can make another user's file");
        return;
    }
    Disk disk;
    ::chmod(disk.Path().c_str(), 0777);
    disk.Save("f", "old");
    ::chmod((disk / "f").c_str(), 0666);
    CHECK(HoldsInChild(true, [&] {
        disk.Save("f", "new");
        return true;
    }));
    CHECK(disk.Permissions("f") == 0666);
    for (const gid_t group : {65534U, 65533U}) { // the user's own and another
        ::chmod((disk / "f").c_str(), 0676);
        REQUIRE(::chown((disk / "f").c_str(), 65533, group) == 0);
        CHECK(HoldsInChild(true, [&] {
            disk.Save("f", "newer");
            return true;
        }));
        CHECK(disk.Read("f") == "newer");
        CHECK(disk.Permissions("f") == (group == 65534U ? 0676 : 0666));
    }
}

TEST_CASE("A sweep takes what killed saves left, and neither a save under way nor anything else") {
    Disk disk;
    const auto underWay = disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget);
    underWay->Write("whole");
    const auto live = *NamesIn(disk.Path()).begin();
    CHECK(live == ".tessarolyne-save-0");
    for (const char* name : {".tessarolyne-save-1", ".tessarolyne-save-27", ".tessarolyne-save-", "f.tmp",
             ".tessarolyne-save-1.txt", "tessarolyne-save-1"}) {
        WriteFile(disk / name, "x");
    }
    fs::create_symlink("f.tmp", disk / ".tessarolyne-save-2");
    fs::create_directory(disk / ".tessarolyne-save-3");
    disk.files.SweepLeftovers(disk.Path());
    CHECK(NamesIn(disk.Path()) == std::set<std::string>{live, ".tessarolyne-save-", "f.tmp",
                                      ".tessarolyne-save-1.txt", "tessarolyne-save-1", ".tessarolyne-save-2",
                                      ".tessarolyne-save-3"});
    underWay->Commit();
    CHECK(disk.Read("f") == "whole");
    disk.files.SweepLeftovers(disk / "none");
}

TEST_CASE("Two saves of one file at a time are both whole, and the later one stays") {
    Disk disk;
    const auto first = disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget);
    const auto second = disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget);
    first->Write(std::string(300'000, '1'));
    second->Write(std::string(300'000, '2'));
    second->Commit();
    CHECK(disk.Read("f") == std::string(300'000, '2'));
    first->Commit();
    CHECK(disk.Read("f") == std::string(300'000, '1'));
    CHECK_THROWS_AS(first->Commit(), IOException);
}

TEST_CASE("Pieces of every size come out in their order") {
    Disk disk;
    const auto file = disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget);
    std::string whole;
    for (std::size_t size = 1; size < 2'000'000; size = size * 3 + 1) {
        const std::string piece(size, static_cast<char>('a' + size % 26));
        file->Write(piece);
        file->Write("|");
        whole += piece + "|";
    }
    file->Commit();
    CHECK(disk.Read("f") == whole);
}

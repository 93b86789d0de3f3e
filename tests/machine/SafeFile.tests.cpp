#include "machine/FailingCalls.h"
#include "machine/PosixFileSystem.h"
#include "machine/TemporaryFolder.h"
#include "platform/IOException.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace tessarolyne;

namespace {

namespace fs = std::filesystem;

constexpr unsigned nobody = 65534;
constexpr unsigned somebody = 65533;
constexpr const char* accessList = "system.posix_acl_access";

struct Disk : TemporaryFolder {
    PosixFileSystem files;

    // False if the save failed, as it says itself.
    bool Save(
        const std::string& name, const std::string& text, LinkPolicy links = LinkPolicy::ReplaceTarget) {
        try {
            const auto file = files.CreateSafely(*this / name, links);
            file->Write(text);
            file->Commit();
            return true;
        } catch (const IOException&) {
            return false;
        }
    }
    bool CanReplace(const std::string& name, LinkPolicy links = LinkPolicy::ReplaceTarget) const {
        return files.CanReplace(*this / name, links);
    }
    std::string Read(const std::string& name) const { return ReadFile(*this / name); }
    struct stat Status(const std::string& name) const {
        struct stat status {};
        REQUIRE(::lstat((*this / name).c_str(), &status) == 0);
        return status;
    }
    mode_t Permissions(const std::string& name) const { return Status(name).st_mode & 07777U; }
    void Set(const std::string& name, mode_t permissions) const {
        REQUIRE(::chmod((*this / name).c_str(), permissions) == 0);
    }
    std::string List(const std::string& name) const {
        char list[1000];
        const auto size = ::getxattr((*this / name).c_str(), accessList, list, sizeof list);
        return {list, static_cast<std::size_t>(size < 0 ? 0 : size)};
    }
};

// How a process of its own ends, which may be changed for good: by a signal's number, or 0 if the check
// holds.
int EndOf(bool asOrdinaryUser, const std::function<bool()>& check) {
    const pid_t process = ::fork();
    if (process == 0) {
        const bool ready =
            !asOrdinaryUser || ::geteuid() != 0 || (::setgid(nobody) == 0 && ::setuid(nobody) == 0);
        std::_Exit(ready && check() ? 0 : 100);
    }
    int status = 0;
    REQUIRE(::waitpid(process, &status, 0) == process);
    return WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status);
}

bool HoldsAsOrdinaryUser(const std::function<bool()>& check) {
    return EndOf(true, check) == 0;
}

bool IsSuperuser() {
    if (::geteuid() != 0) {
        MESSAGE("skipped: only the superuser can make another user's file, or a device");
    }
    return ::geteuid() == 0;
}

const std::string oldText(150'000, 'o');
const std::string newText = std::string(300'000, 'n') + "end";
const std::set<std::string> onlyTheFile = {"f"};
const std::map<std::string, int> noRename = {{"renameat", EBUSY}};

struct OldFile : Disk {
    OldFile() {
        WriteFile(*this / "f", oldText);
        Set("f", 0640);
    }
};

using Names = std::vector<std::string>;

Names CallsOfASave(const std::map<std::string, int>& refused) {
    OldFile disk;
    FailingCalls calls;
    calls.refused = refused;
    disk.Save("f", newText);
    return calls.made;
}

std::size_t IndexOf(const Names& calls, const std::string& name) {
    return static_cast<std::size_t>(std::find(calls.begin(), calls.end(), name) - calls.begin());
}

} // namespace

TEST_CASE("Whichever call of a save fails, it is told and the old file stands, or the new one is there") {
    const std::set<std::string> needed = {"write", "read", "lseek", "ftruncate"};
    const std::set<std::string> spared = {
        "flock", "fchown", "fchmod", "fremovexattr", "lgetxattr", "memfd_create"};
    for (const auto& refused : {std::map<std::string, int>(), noRename}) {
        const Names calls = CallsOfASave(refused);
        const auto rename = IndexOf(calls, "renameat");
        REQUIRE(rename < calls.size());
        for (std::size_t call = 0; call < calls.size(); ++call) {
            for (const int error : {EIO, ENOSPC, EACCES}) {
                OldFile disk;
                bool saved = false;
                {
                    FailingCalls failing;
                    failing.refused = refused;
                    failing.failing = static_cast<int>(call);
                    failing.error = error;
                    saved = disk.Save("f", newText);
                }
                CAPTURE(calls[call]);
                CAPTURE(call);
                CAPTURE(error);
                CHECK(disk.Read("f") == (saved ? newText : oldText));
                CHECK(NamesIn(disk.Path()) == onlyTheFile);
                CHECK((disk.Permissions("f") & ~0640U) == 0);
                const bool replaced = refused.empty() && call > rename;
                if (replaced || spared.contains(calls[call])) {
                    CHECK(saved);
                } else if (needed.contains(calls[call]) || calls[call] == "fsync") {
                    CHECK_FALSE(saved);
                }
            }
        }
    }
}

TEST_CASE("A save that is killed at any call leaves the old file or the new one, and what a sweep removes") {
    const Names calls = CallsOfASave({});
    const auto rename = IndexOf(calls, "renameat");
    for (std::size_t call = 0; call < calls.size(); ++call) {
        OldFile disk;
        CHECK(EndOf(false, [&] {
            FailingCalls failing;
            failing.failing = static_cast<int>(call);
            failing.error = FailingCalls::kill;
            return disk.Save("f", newText);
        }) == SIGKILL);
        CAPTURE(call);
        CHECK(disk.Read("f") == (call > rename ? newText : oldText));
        disk.files.SweepLeftovers(disk.Path());
        CHECK(NamesIn(disk.Path()) == onlyTheFile);
    }
}

TEST_CASE("A file is synced with all its bytes before it takes its name, and its folder after") {
    const Names calls = CallsOfASave({});
    Names order;
    for (const auto& call : calls) {
        if ((call == "write" || call == "fsync" || call == "renameat") &&
            (order.empty() || order.back() != call)) {
            order.push_back(call);
        }
    }
    CHECK(order == Names{"write", "fsync", "renameat", "fsync"});
}

TEST_CASE("Where the file system can do less, a save does with less") {
    struct Row {
        std::map<std::string, int> refused;
        mode_t permissions;
        bool inPlace = false;
    };
    const std::map<std::string, int> noLists = {
        {"lgetxattr", EOPNOTSUPP}, {"fremovexattr", EOPNOTSUPP}, {"fsetxattr", EOPNOTSUPP}};
    const Row rows[] = {{{{"fchmod", EPERM}, {"flock", EINVAL}, {"fchown", EIO}}, 0600}, {noLists, 0644},
        {{{"fsync", EINVAL}}, 0644}, {{{"lgetxattr", EIO}}, 0644, true},
        {{{"fremovexattr", EIO}}, 0644, true}, {{{"renameat", EBUSY}}, 0644, true},
        {{{"renameat", EPERM}}, 0600, true}};
    for (const Row& row : rows) {
        for (const std::string& text : {newText, std::string("short")}) {
            OldFile disk;
            disk.Set("f", row.permissions);
            const auto before = disk.Status("f").st_ino;
            {
                FailingCalls calls;
                calls.refused = row.refused;
                CHECK(disk.Save("f", text));
            }
            CAPTURE(row.refused.begin()->first);
            CHECK(disk.Read("f") == text);
            CHECK(disk.Permissions("f") == row.permissions);
            CHECK((disk.Status("f").st_ino == before) == row.inPlace);
            CHECK(NamesIn(disk.Path()) == onlyTheFile);
        }
    }
    // The disk is full, and the leftover goes only at the second attempt.
    OldFile disk;
    const Names calls = CallsOfASave({{"write", ENOSPC}});
    FailingCalls full;
    full.refused = {{"write", ENOSPC}};
    full.failing = static_cast<int>(IndexOf(calls, "unlinkat"));
    full.error = EIO;
    CHECK_FALSE(disk.Save("f", newText));
    CHECK(NamesIn(disk.Path()) == onlyTheFile);
}

TEST_CASE("A writable file in a folder that takes none is written in place") {
    Disk disk;
    WriteFile(disk / "f", oldText);
    WriteFile(disk / "locked", oldText);
    fs::create_symlink("f", disk / "link");
    disk.Set("f", 0666);
    disk.Set("locked", 0444);
    for (const mode_t folder : {0555U, 01777U}) { // closed, and one in which names stay their owner's
        ::chmod(disk.Path().c_str(), folder);
        WriteFile(disk / "f", oldText);
        CHECK(HoldsAsOrdinaryUser([&] {
            return disk.CanReplace("f") && disk.Save("link", "new") && !disk.CanReplace("locked") &&
                   !disk.Save("locked", "new") && disk.CanReplace("new") == (folder == 01777U) &&
                   disk.Save("new", "") == (folder == 01777U);
        }));
        if (::geteuid() == 0) {
            CHECK(HoldsAsOrdinaryUser([&] { return !disk.CanReplace("link", LinkPolicy::ReplaceLink); }));
        }
        CHECK(disk.Read("f") == "new");
        CHECK(disk.Read("locked") == oldText);
    }
    ::chmod(disk.Path().c_str(), 0755);
}

TEST_CASE("A file that was abandoned, or whose disk has a limit, leaves the old one and nothing else") {
    OldFile disk;
    disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget)->Write(newText);
    CHECK(EndOf(false, [&] {
        const PosixFileSystem signalsSet;
        const rlimit limit{200'000, 200'000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        return !disk.Save("f", newText);
    }) == 0);
    CHECK(disk.Read("f") == oldText);
    CHECK(NamesIn(disk.Path()) == onlyTheFile);
}

TEST_CASE("A save keeps permissions, owner and group, and opens a file to nobody who couldn't read it") {
    Disk disk;
    const mode_t mask = ::umask(027);
    disk.Save("new", "1");
    ::umask(mask);
    CHECK(disk.Permissions("new") == 0640);
    disk.Set("new", 0755);
    disk.Save("new", "2");
    CHECK(disk.Permissions("new") == 0755);
    if (!IsSuperuser()) {
        return;
    }
    ::chmod(disk.Path().c_str(), 0777);
    const auto path = disk / "new";
    struct Row {
        gid_t group;
        mode_t before, after;
    };
    for (const Row& row : {Row{nobody, 0676, 0676}, {somebody, 0676, 0666}, {somebody, 0606, 0600}}) {
        REQUIRE(::chown(path.c_str(), somebody, row.group) == 0);
        disk.Set("new", row.before);
        CHECK(disk.Save("new", "by the superuser"));
        CHECK(disk.Status("new").st_uid == somebody);
        CHECK(disk.Status("new").st_gid == row.group);
        CHECK(disk.Permissions("new") == row.before);
        CHECK(HoldsAsOrdinaryUser([&] { return disk.Save("new", "newer"); }));
        CHECK(disk.Read("new") == "newer");
        CHECK(disk.Permissions("new") == row.after);
    }
}

TEST_CASE("A file keeps its access control list, and doesn't get its folder's") {
    OldFile disk;
    const auto entry = [](char tag, char rights, unsigned id) {
        return std::string{tag, 0, rights, 0, static_cast<char>(id), static_cast<char>(id >> 8U),
            static_cast<char>(id >> 16U), static_cast<char>(id >> 24U)};
    };
    // owner rw, one user rw, group nothing, mask rw, others nothing
    const std::string list = std::string("\2\0\0\0", 4) + entry(1, 6, ~0U) + entry(2, 6, nobody) +
                             entry(4, 0, ~0U) + entry(16, 6, ~0U) + entry(32, 0, ~0U);
    const auto path = disk / "f";
    if (::setxattr(disk.Path().c_str(), "system.posix_acl_default", list.data(), list.size(), 0) != 0) {
        MESSAGE("skipped: no access control lists here");
        return;
    }
    CHECK(disk.Save("f", newText));
    CHECK(disk.List("f").empty());
    CHECK(disk.Permissions("f") == 0640);
    const auto given = [&] { return ::setxattr(path.c_str(), accessList, list.data(), list.size(), 0) == 0; };
    REQUIRE(given());
    for (const char* refused : {"nothing", "fsetxattr"}) {
        FailingCalls calls;
        calls.refused = {{refused, EPERM}};
        CHECK(disk.Save("f", refused));
        CHECK(disk.Read("f") == refused);
        CHECK(disk.List("f") == list);
    }
    if (IsSuperuser()) { // the user with the list's rights can't give the file back to its owner
        ::chmod(disk.Path().c_str(), 0777);
        CHECK(HoldsAsOrdinaryUser([&] { return disk.Save("f", "by another"); }));
        CHECK(disk.Read("f") == "by another");
        CHECK(disk.List("f") == list);
        CHECK(disk.Status("f").st_uid == 0);
    }
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
    disk.Save("first", "itself", LinkPolicy::ReplaceLink);
    CHECK(fs::is_regular_file(fs::symlink_status(disk / "first")));
    CHECK(disk.Read("first") == "itself");
    CHECK(disk.Read("folder/target") == "new");
}

TEST_CASE("What is no regular file is refused at once, with nothing made") {
    Disk disk;
    fs::create_directory(disk / "folder");
    REQUIRE(::mkfifo((disk / "fifo").c_str(), 0666) == 0);
    fs::create_symlink("fifo", disk / "toFifo");
    fs::create_symlink("loop", disk / "loop");
    Names names = {"folder", "fifo", "toFifo", "loop", "none/f", "fifo/f"};
    // A device of the test's own: were the guard broken, no other would be gone.
    if (IsSuperuser() && ::mknod((disk / "device").c_str(), S_IFCHR | 0666, makedev(1, 3)) == 0) {
        fs::create_symlink("device", disk / "toDevice");
        names.insert(names.end(), {"device", "toDevice"});
    }
    const auto before = NamesIn(disk.Path());
    for (const auto& name : names) {
        CAPTURE(name);
        CHECK_FALSE(disk.Save(name, "x"));
        CHECK_FALSE(disk.CanReplace(name));
    }
    CHECK(disk.CanReplace("loop", LinkPolicy::ReplaceLink));
    CHECK(disk.CanReplace("new"));
    CHECK(NamesIn(disk.Path()) == before);
}

TEST_CASE("A sweep takes what killed saves left, and neither a save under way nor anything else") {
    Disk disk;
    const auto underWay = disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget);
    underWay->Write("whole");
    std::set<std::string> kept = {".tessarolyne-save-0", ".tessarolyne-save-", "f.tmp",
        ".tessarolyne-save-1.txt", "tessarolyne-save-1", ".tessarolyne-save-2", ".tessarolyne-save-3"};
    for (const char* name : {".tessarolyne-save-1", ".tessarolyne-save-27", ".tessarolyne-save-", "f.tmp",
             ".tessarolyne-save-1.txt", "tessarolyne-save-1"}) {
        WriteFile(disk / name, "x");
    }
    fs::create_symlink("f.tmp", disk / ".tessarolyne-save-2");
    fs::create_directory(disk / ".tessarolyne-save-3");
    disk.files.SweepLeftovers(disk.Path());
    CHECK(NamesIn(disk.Path()) == kept);
    underWay->Commit();
    CHECK(disk.Read("f") == "whole");
    CHECK_THROWS_AS(underWay->Commit(), IOException);
    disk.files.SweepLeftovers(disk / "none");
}

TEST_CASE("Pieces of every size come out in their order, and of two saves at a time the later one stays") {
    Disk disk;
    const auto file = disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget);
    std::string whole;
    for (std::size_t size = 1; size < 2'000'000; size = size * 3 + 1) {
        const std::string piece(size, static_cast<char>('a' + size % 26));
        file->Write(piece);
        file->Write("|");
        whole += piece + "|";
    }
    disk.Save("f", "between");
    CHECK(disk.Read("f") == "between");
    file->Commit();
    CHECK(disk.Read("f") == whole);
}

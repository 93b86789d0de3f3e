#include "machine/PosixFileSystem.h"
#include "machine/TemporaryFolder.h"

#include <doctest/doctest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <map>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace tessarolyne;

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

static bool Fails(const char* call) {
    auto* const living = FailingCalls::living;
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

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using Refused = std::map<std::string, int>;

constexpr unsigned nobody = 65534;
constexpr unsigned somebody = 65533;
constexpr const char* accessList = "system.posix_acl_access";
const std::string oldText(150'000, 'o');
const std::string newText = std::string(300'000, 'n') + "end";
const Refused noRename = {{"renameat", EBUSY}};

// A folder with one file.
struct Disk : TemporaryFolder {
    explicit Disk(mode_t permissions = 0640) {
        WriteFile(*this / "f", oldText);
        Set("f", permissions);
    }
    // False if the save failed, as it says itself.
    bool Save(const std::string& text, const std::string& name = "f",
        LinkPolicy links = LinkPolicy::ReplaceTarget) {
        try {
            const auto file = files.CreateSafely(*this / name, links);
            file->Write(text);
            file->Commit();
            return true;
        } catch (const IOException&) {
            return false;
        }
    }
    bool SaveFailing(const Refused& refused, const std::string& text, int call = -1, int error = 0) {
        FailingCalls calls;
        calls.refused = refused;
        calls.failing = call;
        calls.error = error;
        return Save(text);
    }
    bool CanReplace(const std::string& name, LinkPolicy links = LinkPolicy::ReplaceTarget) const {
        return files.CanReplace(*this / name, links);
    }
    // The content of the file, if nothing else is there.
    std::string Left() const {
        return NamesIn(Path()) == std::set<std::string>{"f"} ? Read() : "a temporary file too";
    }
    std::string Read(const std::string& name = "f") const { return ReadFile(*this / name); }
    struct stat Status() const {
        struct stat status {};
        REQUIRE(::lstat((*this / "f").c_str(), &status) == 0);
        return status;
    }
    mode_t Permissions() const { return Status().st_mode & 07777U; }
    void Set(const std::string& name, mode_t permissions) const {
        REQUIRE(::chmod((*this / name).c_str(), permissions) == 0);
    }
    PosixFileSystem files;
};

// How a process of its own ends, which may be changed for good: with a signal's number, or 0 if the check
// holds.
int EndOf(bool asOrdinaryUser, const std::function<bool()>& check) {
    const pid_t process = ::fork();
    if (process == 0) {
        const bool isSuperuser = asOrdinaryUser && ::geteuid() == 0;
        const bool ready = !isSuperuser || (::setgid(nobody) == 0 && ::setuid(nobody) == 0);
        std::_Exit(ready && check() ? 0 : 100);
    }
    int status = 0;
    REQUIRE(::waitpid(process, &status, 0) == process);
    return WIFSIGNALED(status) ? WTERMSIG(status) : WEXITSTATUS(status);
}

bool IsSuperuser() {
    if (::geteuid() != 0) {
        MESSAGE("skipped: only the superuser can make another user's file, or a device");
    }
    return ::geteuid() == 0;
}

Names CallsOfASave(const Refused& refused) {
    Disk disk;
    FailingCalls calls;
    calls.refused = refused;
    CHECK(disk.Save(newText));
    return calls.made;
}

int RenameIn(const Names& calls) {
    return static_cast<int>(std::find(calls.begin(), calls.end(), "renameat") - calls.begin());
}

} // namespace

TEST_CASE("Whichever call of a save fails, it is told and the old file stands, or the new one is there") {
    const std::set<std::string> needed = {"write", "read", "lseek", "ftruncate", "fsync"};
    const std::set<std::string> spared = {
        "flock", "fchown", "fchmod", "fremovexattr", "lgetxattr", "memfd_create"};
    for (const auto& refused : {Refused(), noRename}) {
        const Names calls = CallsOfASave(refused);
        int call = -1;
        for (const auto& name : calls) {
            ++call;
            for (const int error : {EIO, ENOSPC, EACCES}) {
                Disk disk;
                const bool saved = disk.SaveFailing(refused, newText, call, error);
                CAPTURE(name);
                CAPTURE(call);
                CAPTURE(error);
                CHECK(disk.Left() == (saved ? newText : oldText));
                CHECK((disk.Permissions() & ~0640U) == 0);
                const bool replaced = refused.empty() && call > RenameIn(calls);
                CHECK((saved || !(replaced || spared.contains(name))));
                CHECK((!saved || replaced || !needed.contains(name)));
            }
        }
    }
}

TEST_CASE("A save that is killed at any call leaves the old file or the new one, and what a sweep removes") {
    const Names calls = CallsOfASave({});
    for (int call = 0; call < static_cast<int>(calls.size()); ++call) {
        Disk disk;
        const auto save = [&] { return disk.SaveFailing({}, newText, call, FailingCalls::kill); };
        CHECK(EndOf(false, save) == SIGKILL);
        CAPTURE(call);
        disk.files.SweepLeftovers(disk.Path());
        CHECK(disk.Left() == (call > RenameIn(calls) ? newText : oldText));
    }
}

TEST_CASE(
    "A file is synced with all its bytes before it takes its name, its folder after, and in place too") {
    for (const auto& refused : {Refused(), noRename}) {
        Names order;
        for (const auto& call : CallsOfASave(refused)) {
            const bool counts = call == "write" || call == "fsync" || call == "renameat";
            if (counts && (order.empty() || order.back() != call)) {
                order.push_back(call);
            }
        }
        Names expected = {"write", "fsync", "renameat", "fsync"};
        if (!refused.empty()) { // in place, the old bytes are put aside before the new ones come
            expected.insert(expected.end() - 1, "write");
        }
        CHECK(order == expected);
    }
}

TEST_CASE("Where the file system can do less, a save does with less") {
    struct Row {
        Refused refused;
        mode_t before, after;
        bool inPlace = false;
    };
    const Row rows[] = {{{{"fchmod", EPERM}, {"flock", EINVAL}, {"fchown", EIO}}, 0600, 0600},
        {{{"fchmod", EPERM}}, 0644, 0600}, {{{"fsync", EINVAL}}, 0644, 0644},
        {{{"lgetxattr", EOPNOTSUPP}, {"fremovexattr", EOPNOTSUPP}}, 0644, 0644},
        {{{"lgetxattr", EIO}}, 0644, 0644, true}, {{{"fremovexattr", EPERM}}, 0644, 0644},
        {{{"openat, no link", ELOOP}, {"renameat", EBUSY}}, 0644, 0644, true},
        {{{"renameat", EPERM}}, 0600, 0600, true}, {noRename, 0644, 0644, true}};
    for (const Row& row : rows) {
        for (const std::string& text : {newText, std::string("short")}) {
            Disk disk(row.before);
            const auto before = disk.Status().st_ino;
            CAPTURE(row.refused.begin()->first);
            CHECK(disk.SaveFailing(row.refused, text));
            CHECK(disk.Left() == text);
            CHECK(disk.Permissions() == row.after);
            CHECK((disk.Status().st_ino == before) == row.inPlace);
        }
    }
}

TEST_CASE("A writable file in a folder that takes none is written in place") {
    Disk disk;
    WriteFile(disk / "locked", oldText);
    disk.Set("locked", 0444);
    fs::create_symlink("f", disk / "link");
    disk.Set("f", 0666);
    for (const mode_t folder : {0555U, 01777U}) { // closed, and one in which names stay their owner's
        disk.Set(".", folder);
        WriteFile(disk / "f", oldText);
        const bool takesNew = folder == 01777U;
        CHECK(EndOf(true, [&] {
            return disk.CanReplace("f") && disk.Save("new", "link") && !disk.CanReplace("locked") &&
                   !disk.Save("new", "locked") && disk.CanReplace("new") == takesNew &&
                   disk.Save("", "new") == takesNew &&
                   (!IsSuperuser() || !disk.CanReplace("link", LinkPolicy::ReplaceLink));
        }) == 0);
        CHECK(disk.Read() == "new");
        CHECK(disk.Read("locked") == oldText);
    }
    disk.Set(".", 0755);
}

TEST_CASE("A save that was abandoned, or whose disk is full, leaves the old file and nothing else at once") {
    Disk disk;
    disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget)->Write(newText);
    const auto file = disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget);
    {
        FailingCalls full;
        full.refused = {{"write", ENOSPC}};
        full.failing = 1; // the first attempt to remove the leftover
        full.error = EIO;
        CHECK_THROWS_AS(file->Write(newText), IOException);
        CHECK(full.made == Names{"write", "unlinkat", "unlinkat"});
    }
    CHECK(disk.Left() == oldText);
    CHECK_THROWS_AS(file->Commit(), IOException);
    CHECK(EndOf(false, [&] { // no signal, either
        const rlimit limit{200'000, 200'000};
        return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 && !disk.Save(newText);
    }) == 0);
    CHECK(disk.Left() == oldText);
}

TEST_CASE("A save keeps permissions, owner and group, and opens a file to nobody who couldn't read it") {
    Disk disk(0755);
    const mode_t mask = ::umask(027);
    CHECK(disk.Save("", "new"));
    ::umask(mask);
    CHECK(fs::status(disk / "new").permissions() == fs::perms(0640));
    CHECK(disk.Save("1"));
    CHECK(disk.Permissions() == 0755);
    if (!IsSuperuser()) {
        return;
    }
    disk.Set(".", 0777);
    const std::array<unsigned, 3> rows[] = {
        {nobody, 0676, 0676}, {somebody, 0676, 0666}, {somebody, 0606, 0600}};
    for (const auto& [group, before, after] : rows) {
        REQUIRE(::chown((disk / "f").c_str(), somebody, group) == 0);
        disk.Set("f", before);
        CHECK(disk.Save("by the superuser"));
        CHECK(disk.Status().st_uid == somebody);
        CHECK(disk.Status().st_gid == group);
        CHECK(disk.Permissions() == before);
        CHECK(EndOf(true, [&] { return disk.Save("newer"); }) == 0);
        CHECK(disk.Read() == "newer");
        CHECK(disk.Permissions() == after);
    }
}

TEST_CASE("A file keeps its access control list, and doesn't get its folder's") {
    Disk disk;
    const auto entry = [](char tag, char rights, unsigned id) {
        return std::string{tag, 0, rights, 0, static_cast<char>(id), static_cast<char>(id >> 8U),
            static_cast<char>(id >> 16U), static_cast<char>(id >> 24U)};
    };
    // Read and write for the owner, one user and the mask; nothing for the group and others.
    const auto listWith = [&](unsigned user) {
        return std::string("\2\0\0\0", 4) + entry(1, 6, ~0U) + entry(2, 6, user) + entry(4, 0, ~0U) +
               entry(16, 6, ~0U) + entry(32, 0, ~0U);
    };
    const auto listOf = [&] {
        char list[1000];
        const auto size = ::getxattr((disk / "f").c_str(), accessList, list, sizeof list);
        return std::string(list, static_cast<std::size_t>(size < 0 ? 0 : size));
    };
    const auto ofFolder = listWith(somebody);
    if (::setxattr(disk.Path().c_str(), "system.posix_acl_default", ofFolder.data(), ofFolder.size(), 0) !=
        0) {
        MESSAGE("skipped: no access control lists here");
        return;
    }
    for (const char* refused : {"nothing", "fremovexattr"}) {
        CHECK((disk.SaveFailing({{refused, EPERM}}, refused) && disk.Left() == refused));
        CHECK((listOf().empty() && disk.Permissions() == 0640));
    }
    const auto list = listWith(nobody);
    REQUIRE(::setxattr((disk / "f").c_str(), accessList, list.data(), list.size(), 0) == 0);
    for (const char* refused : {"nothing", "fsetxattr"}) {
        CHECK((disk.SaveFailing({{refused, EPERM}}, refused) && disk.Left() == refused));
        CHECK(listOf() == list);
    }
}

TEST_CASE("A link stays and its target is replaced, unless the link itself is to go") {
    Disk disk;
    fs::create_directory(disk / "folder");
    fs::create_symlink("folder/second", disk / "first");
    fs::create_symlink("target", disk / "folder/second");
    for (const char* text : {"made through a dangling link", "replaced"}) {
        CHECK(disk.Save(text, "first"));
        CHECK(disk.Read("folder/target") == text);
    }
    CHECK(fs::is_symlink(disk / "first"));
    CHECK(NamesIn(disk / "folder") == std::set<std::string>{"second", "target"});
    CHECK(disk.Save("itself", "first", LinkPolicy::ReplaceLink));
    CHECK(fs::is_regular_file(fs::symlink_status(disk / "first")));
    CHECK(disk.Read("folder/target") == "replaced");
}

TEST_CASE("What is no regular file is neither written nor read, nor waited for, and nothing is made") {
    Disk disk;
    fs::create_directory(disk / "folder");
    REQUIRE(::mkfifo((disk / "fifo").c_str(), 0666) == 0);
    fs::create_symlink("fifo", disk / "toFifo");
    fs::create_symlink("loop", disk / "loop");
    Names names = {"folder", "fifo", "toFifo", "loop", "none/f", "f/f"};
    // A device of the test's own: were the guard broken, no other would be gone.
    if (IsSuperuser() && ::mknod((disk / "device").c_str(), S_IFCHR | 0666, makedev(1, 3)) == 0) {
        fs::create_symlink("device", disk / "toDevice");
        names.insert(names.end(), {"device", "toDevice"});
    }
    const auto before = NamesIn(disk.Path());
    for (const auto& name : names) {
        CAPTURE(name);
        CHECK_FALSE(disk.Save("x", name));
        CHECK_FALSE(disk.CanReplace(name));
        CHECK_THROWS_AS(disk.files.OpenForReading(disk / name), IOException);
    }
    CHECK(disk.CanReplace("loop", LinkPolicy::ReplaceLink));
    CHECK(NamesIn(disk.Path()) == before);
}

TEST_CASE("A sweep takes what killed saves left, and neither a save under way nor anything else") {
    Disk disk;
    const auto underWay = disk.files.CreateSafely(disk / "f", LinkPolicy::ReplaceTarget);
    for (const char* name : {"-", "-1.txt", "-1", "-27"}) {
        WriteFile(disk / (".tessarolyne-save" + std::string(name)), "x");
    }
    fs::create_symlink("f", disk / ".tessarolyne-save-2");
    fs::create_directory(disk / ".tessarolyne-save-3");
    disk.files.SweepLeftovers(disk.Path());
    CHECK(
        NamesIn(disk.Path()) == std::set<std::string>{"f", ".tessarolyne-save-", ".tessarolyne-save-0",
                                    ".tessarolyne-save-1.txt", ".tessarolyne-save-2", ".tessarolyne-save-3"});
    underWay->Commit();
    CHECK(disk.Read().empty());
    disk.files.SweepLeftovers(disk / "none");
}

TEST_CASE("A file is read in pieces of any size, up to where its end was when it was opened") {
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
}

TEST_CASE("A path is looked at without following a link, and only what isn't there is none") {
    Disk disk;
    fs::create_directory(disk / "d");
    fs::create_symlink("f", disk / "a");
    fs::create_symlink("a", disk / "b");
    fs::create_symlink("loop", disk / "loop");
    REQUIRE(::mkfifo((disk / "fifo").c_str(), 0666) == 0);
    for (const auto& [name, kind] :
        {std::pair(std::string("f"), FileKind::Regular), {"b", FileKind::Link}, {"loop", FileKind::Link},
            {"d", FileKind::Folder}, {"fifo", FileKind::Other}, {"none", FileKind::None},
            {"f/none", FileKind::None}, {std::string(300, 'x'), FileKind::Unknown}}) {
        CAPTURE(name);
        CHECK(disk.files.Kind(disk / name) == kind);
    }
    CHECK(disk.files.Resolve(disk / "b") == fs::canonical(disk / "f"));
    CHECK_FALSE(disk.files.Resolve(disk / "loop").has_value());
}

TEST_CASE("Volumes are the root and, each once, what stands where desktops mount what is plugged in") {
    Disk disk;
    WriteFile(disk / "mounts",
        "proc /proc proc rw 0 0\n/dev/sda1 / ext4 rw 0 0\n"
        "/dev/sdb1 /media/ann/my\\040disk vfat rw 0 0\n/dev/sdc1 /run/media/ann/x ext4 rw 0 0\n"
        "/dev/sdd1 /home ext4 rw 0 0\n/dev/sdc1 /run/media/ann/x ext4 rw 0 0\n"
        "/dev/sde1 /mnt/nas nfs rw 0 0\n");
    const std::vector<Volume> expected = {
        {"Root", "/"}, {"my disk", "/media/ann/my disk"}, {"x", "/run/media/ann/x"}, {"nas", "/mnt/nas"}};
    CHECK((PosixFileSystem({}, disk / "mounts").Volumes() == expected));
}

TEST_CASE("A file that is kept keeps its bytes when a save replaces it, open to no more people") {
    Disk disk(0600);
    const auto bad = disk / "f.bad";
    fs::create_symlink("f", bad);
    for (const std::string text : {"second", "third"}) {
        const auto before = disk.Read();
        for (const char* refused : {"nothing", "read"}) { // what can't be read is kept as well
            FailingCalls calls;
            calls.refused = {{refused, EACCES}};
            disk.files.KeepAs(disk / "f", bad);
        }
        CHECK(disk.Save(text));
        CHECK(ReadFile(bad) == before);
        CHECK(disk.Read() == text);
        CHECK(fs::is_regular_file(fs::symlink_status(bad)));
    }
    disk.Set("f.bad", 0777);
    {
        FailingCalls calls;
        calls.refused = noRename;
        disk.files.KeepAs(disk / "f", bad);
    }
    CHECK(fs::status(bad).permissions() == (fs::perms::owner_read | fs::perms::owner_write));
    fs::create_directory(disk / "d");
    CHECK_THROWS_AS(disk.files.KeepAs(disk / "f", disk / "d"), IOException);
    CHECK_THROWS_AS(disk.files.KeepAs(disk / "none", disk / "x"), IOException);
}

TEST_CASE("A file is kept apart from itself, and never lost to its own copy") {
    Disk disk;
    const auto bad = disk / "f.bad";
    fs::create_hard_link(disk / "f", bad);
    disk.files.KeepAs(disk / "f", bad);
    CHECK(fs::hard_link_count(disk / "f") == 1); // a save may write the file in place
    fs::remove(disk / "f");
    fs::create_symlink(bad, disk / "f");
    CHECK_THROWS_AS(disk.files.KeepAs(disk / "f", bad), IOException);
    CHECK(ReadFile(bad) == oldText);
}

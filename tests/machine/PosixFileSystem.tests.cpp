#include "machine/PosixFileSystem.h"
#include "machine/FailingCalls.h"
#include "machine/KnownFolders.h"
#include "machine/MountedVolumes.h"
#include "machine/TemporaryFolder.h"
#include "platform/IOException.h"

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
};

// An environment variable for the time of a test.
class Variable {
public:
    Variable(const char* name, const std::string& value) : name_(name) {
        if (const char* old = std::getenv(name)) {
            old_ = old;
        }
        ::setenv(name, value.c_str(), 1);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { old_ ? ::setenv(name_, old_->c_str(), 1) : ::unsetenv(name_); }

private:
    const char* name_;
    std::optional<std::string> old_;
};

} // namespace

TEST_CASE("A file is read in pieces of any size, and what is no regular file is refused without waiting") {
    Disk disk;
    std::string text;
    for (int i = 0; i < 20'000; ++i) {
        text += std::to_string(i);
    }
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
    CHECK((::mknod((disk / "device").c_str(), S_IFCHR | 0666, makedev(1, 5)) == 0 || ::geteuid() != 0));
    for (const auto& path : {disk / "fifo", disk / "none", disk / "dangling", disk.Path(), disk / "device"}) {
        CAPTURE(path);
        CHECK_THROWS_AS(disk.files.OpenForReading(path), IOException);
    }
}

TEST_CASE("A path is looked at without following a link, and a link is followed to its end") {
    Disk disk;
    WriteFile(disk / "f", "");
    fs::create_symlink(disk / "f", disk / "a");
    fs::create_symlink("a", disk / "b");
    fs::create_symlink("none", disk / "dangling");
    CHECK(disk.files.Kind(disk / "f") == FileKind::Regular);
    CHECK(disk.files.Kind(disk / "b") == FileKind::Link);
    CHECK(disk.files.Kind(disk / "dangling") == FileKind::Link);
    CHECK(disk.files.Kind(disk.Path()) == FileKind::Folder);
    REQUIRE(::mkfifo((disk / "fifo").c_str(), 0666) == 0);
    CHECK(disk.files.Kind(disk / "fifo") == FileKind::Other);
    CHECK(disk.files.Resolve(disk / "b") == fs::canonical(disk / "f").string());
    CHECK_FALSE(disk.files.Resolve(disk / "dangling").has_value());
}

TEST_CASE("What can't be looked at is unknown, and only what isn't there is none") {
    Disk disk;
    WriteFile(disk / "f", "");
    fs::create_directory(disk / "shut");
    WriteFile(disk / "shut/f", "settings");
    fs::create_symlink("shut/./f", disk / "toShut");
    fs::create_symlink("loop", disk / "loop");
    CHECK(disk.files.Kind(disk / "none") == FileKind::None);
    CHECK(disk.files.Kind(disk / "f/none") == FileKind::None);
    CHECK(disk.files.Kind(disk / std::string(300, 'x')) == FileKind::Unknown);
    CHECK_FALSE(disk.files.Resolve(disk / "loop").has_value());
    FailingCalls calls; // the superuser may look at everything
    calls.refused = {{"lstat", EACCES}};
    CHECK(disk.files.Kind(disk / "shut/f") == FileKind::Unknown);
    fs::permissions(disk / "shut", fs::perms::none);
    calls.refused.clear();
    if (::access((disk / "shut/f").c_str(), F_OK) != 0) {
        CHECK(disk.files.Resolve(disk / "toShut") == disk / "shut/f");
    }
    fs::permissions(disk / "shut", fs::perms::owner_all);
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
    fs::create_symlink("none", disk / "dangling");
    CHECK_THROWS_AS(disk.files.KeepAs(disk / "dangling", disk / "x"), IOException);
    fs::create_directory(disk / "d");
    CHECK_THROWS_AS(disk.files.KeepAs(disk / "f", disk / "d"), IOException);
}

TEST_CASE("A file is kept apart from itself, open to no more people, and never lost to its own copy") {
    Disk disk;
    const auto file = disk / "f";
    const auto bad = disk / "f.bad";
    WriteFile(file, "only");
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink(file, bad);
    disk.files.KeepAs(file, bad);
    CHECK(fs::is_regular_file(fs::symlink_status(bad)));
    CHECK(fs::status(bad).permissions() == (fs::perms::owner_read | fs::perms::owner_write));
    fs::remove(bad);
    fs::create_hard_link(file, bad);
    disk.files.KeepAs(file, bad);
    CHECK(fs::hard_link_count(file) == 1); // a save may write the file in place
    fs::remove(file);
    fs::create_symlink(bad, file);
    CHECK_THROWS_AS(disk.files.KeepAs(file, bad), IOException);
    CHECK(ReadFile(bad) == "only");
}

TEST_CASE("Volumes are the root and what is mounted where desktops mount sticks") {
    std::istringstream table("22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
                             "23 22 0:20 / /proc rw - proc proc rw\n"
                             "40 22 8:17 / /media/u/My\\040Stick rw shared:2 - vfat /dev/sdb1 rw\n"
                             "41 22 8:33 / /run/media/u/A:B rw - vfat /dev/sdc1 rw\n"
                             "42 22 8:34 / /mnt/disk rw - ext4 /dev/sdc2 rw\n"
                             "43 42 8:35 / /mnt/disk rw - ext4 /dev/sdc3 rw\n"
                             "44 22 8:36 / /home rw - ext4 /dev/sdc4 rw\n"
                             "\n"
                             "45 22\n");
    CHECK(MountedVolumes(table) == std::vector<Volume>{{"Root", "/"}, {"My Stick", "/media/u/My Stick"},
                                       {"A:B", "/run/media/u/A:B"}, {"disk", "/mnt/disk"}});
    std::istringstream nothing;
    CHECK(MountedVolumes(nothing) == std::vector<Volume>{{"Root", "/"}});
    PosixFileSystem files;
    CHECK(files.VolumeNameAt("/") == "Root");
    CHECK_FALSE(files.VolumeNameAt("/mnt/there is none of this name").has_value());
    CHECK_FALSE(files.VolumeNameAt("/tmp").has_value());
}

TEST_CASE("The preferences folder is the configured one, made for the user alone, else the one at home") {
    Disk disk;
    const Variable home("HOME", disk / "home");
    {
        const Variable configuration("XDG_CONFIG_HOME", disk / "a/b");
        const auto folder = disk.files.Find(KnownFolder::Preferences);
        CHECK(folder == fs::canonical(disk / "a/b").string());
        struct stat status {};
        REQUIRE(::stat((disk / "a/b").c_str(), &status) == 0);
        CHECK((status.st_mode & 0777U) == 0700);
    }
    {
        const Variable relative("XDG_CONFIG_HOME", "a/b");
        const auto folder = disk.files.Find(KnownFolder::Preferences);
        CHECK(folder == fs::canonical(disk / "home/.config").string());
    }
    WriteFile(disk / "file", "");
    const Variable impossible("XDG_CONFIG_HOME", disk / "file/x");
    CHECK_FALSE(disk.files.Find(KnownFolder::Preferences).has_value());
}

TEST_CASE("The documents folder is the one that the desktop's file names, else the usual one, else none") {
    Disk disk;
    const Variable home("HOME", disk.Path());
    const Variable configuration("XDG_CONFIG_HOME", disk / "c");
    CHECK_FALSE(disk.files.Find(KnownFolder::Documents).has_value());
    fs::create_directories(disk / "Documents");
    fs::create_directories(disk / "Mes \"écrits\"");
    fs::create_directories(disk / "c");
    CHECK(disk.files.Find(KnownFolder::Documents) == fs::canonical(disk / "Documents").string());
    WriteFile(disk / "c/user-dirs.dirs", "# comment\nXDG_MUSIC_DIR=\"$HOME/M\"\n"
                                         "XDG_DOCUMENTS_DIR=\"$HOME/Mes \\\"écrits\\\"\"\n");
    CHECK(disk.files.Find(KnownFolder::Documents) == fs::canonical(disk / "Mes \"écrits\"").string());
    CHECK(DocumentsFolderOfLine("  XDG_DOCUMENTS_DIR=\"/data\"", "/h") == "/data");
    for (const char* bad : {"", "XDG_DOCUMENTS_DIR=/x", "XDG_DOCUMENTS_DIR=\"x\"", "XDG_DOCUMENTS_DIR"}) {
        CHECK_FALSE(DocumentsFolderOfLine(bad, "/h").has_value());
    }
}

TEST_CASE("The application's folder is the one of the running program") {
    PosixFileSystem files;
    const auto folder = files.Find(KnownFolder::Application);
    REQUIRE(folder.has_value());
    CHECK(NamesIn(*folder).contains("machine.tests"));
}

TEST_CASE("The package question is asked of the system's library in its own order, and false without it") {
    void* value = nullptr;
    CHECK_FALSE(Foundation("/none").GetResourceValue("file:///x", "NSURLIsPackageKey", value));
    CHECK_FALSE(Foundation("/none").BoolValue(&value));

    const Foundation foundation(FAKE_FOUNDATION);
    CHECK_FALSE(foundation.GetResourceValue("file:///package", "NoSuchKey", value));
    CHECK(value == nullptr);
    CHECK(foundation.GetResourceValue("file:///package", "NSURLIsPackageKey", value));
    CHECK(foundation.BoolValue(value));
    CHECK(foundation.GetResourceValue("file:///folder", "NSURLIsPackageKey", value));
    CHECK_FALSE(foundation.BoolValue(value));
    CHECK_FALSE(foundation.GetResourceValue("file:///none", "NSURLIsPackageKey", value));
    CHECK(value != nullptr);
}

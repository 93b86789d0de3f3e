#include "ui/FileItems.h"
#include "support/MemoryFileSystem.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

namespace {

struct Disk : MemoryFileSystem {
    Disk() {
        AddFolder("/home");
        AddFolder("/home/u");
    }
    std::string PathOf(std::string_view chemin, bool vraiItem = true) {
        const auto item = GetFitemAbsPath(*this, chemin, vraiItem);
        return item ? item->NativePath() : "nil";
    }
};

} // namespace

TEST_CASE("The colon path and the item are each other's inverse for every byte that a name can have") {
    Disk disk;
    for (int byte = 1; byte < 256; ++byte) {
        const std::string path = "/home/u/" + std::string(1, static_cast<char>(byte));
        if (path.ends_with("u//") || path.ends_with("u/.")) {
            continue;
        }
        CAPTURE(byte);
        disk.AddFile(path);
        CHECK(disk.PathOf(AbsPath_f(disk.At(path), true)) == path);
    }
    CHECK(AbsPath_f(disk.At("/home/u/:"), true) == "Root:home:u:/");
    CHECK(AbsPath_f(disk.At("/home/u"), true) == "Root:home:u:");
    CHECK(AbsPath_f(disk.At("/home/u"), false) == "Root:home:u");
    CHECK(disk.PathOf("Root:") == "/");
    CHECK(disk.PathOf("Root:home:u:none") == "/home/u/none"); // a file missing from a folder is an item
    for (const char* path : {"", ":", ":home", "Other:home", "Root:none:x", "Root::x", "Root:home::u",
             "Root::", "Root:home:..", "Root:home:.:u", "root:home"}) {
        CAPTURE(path);
        CHECK(disk.PathOf(path) == "nil");
    }
}

TEST_CASE("Of two volumes of one name the one with the file wins, else the first with the folder") {
    Disk disk;
    disk.volumes = {{"S", "/none"}, {"S", "/a"}, {"S", "/b"}};
    for (const char* folder : {"/a", "/b", "/a/f", "/b/f"}) {
        disk.AddFolder(folder);
    }
    CHECK(disk.PathOf("S") == "/a");
    CHECK(disk.PathOf("S:f:x") == "/a/f/x");
    disk.AddFile("/b/f/x");
    CHECK(disk.PathOf("S:f:x") == "/b/f/x");
    disk.AddFile("/a/f/x");
    CHECK(disk.PathOf("S:f:x") == "/a/f/x");
    CHECK(disk.PathOf("S:g:x") == "nil");
}

TEST_CASE("An alias can be used as long as it leads somewhere, and a package is no folder") {
    Disk disk;
    disk.AddLink("/home/u/alias", "/home/u/file");
    const auto alias = disk.At("/home/u/alias");
    CHECK(PasNil_Existe_Alias(alias, false));
    CHECK_FALSE(PasNil_Existe_Alias(alias, true));
    CHECK(GetTargetItem_f(alias) == alias);
    disk.AddFile("/home/u/file");
    CHECK(PasNil_Existe_Alias(alias, true));
    CHECK(GetTargetItem_f(alias) == disk.At("/home/u/file"));
    CHECK(MemeItem(alias) == alias);
    CHECK(disk.PathOf("Root:home:u:alias", true) == "/home/u/alias");
    CHECK(disk.PathOf("Root:home:u:alias", false) == "/home/u/file");
    CHECK_FALSE(PasNil_Existe_Alias(std::nullopt, false));
    CHECK_FALSE(PasNil_Existe_Alias(disk.At("/home/u/none"), false));
    CHECK((GetTargetItem_f(disk.At("/")) == disk.At("/") && MemeItem(disk.At("/")) == disk.At("/")));

    CHECK((DossPasPack_f(disk.At("/home/u")) && !DossPasPack_f(disk.At("/home/u/file"))));
    disk.packages = {"/home/u"};
    CHECK_FALSE(DossPasPack_f(disk.At("/home/u")));
}

TEST_CASE(
    "A path is absolute and plain, a name is any that a file can bear, a volume has a name and no parent") {
    MemoryFileSystem files;
    CHECK(files.At("/").NativePath() == "/");
    CHECK(files.At("//a///b/./c/").NativePath() == "/a/b/c");
    for (const std::string_view path : {std::string_view("a/b"), {"/a/../b"}, {"/a\0b", 4}}) {
        CHECK_FALSE(FolderItem::FromNativePath(files, path).has_value());
    }
    CHECK(files.At("/").TrueChild("a:b\n%")->NativePath() == "/a:b\n%");
    for (const std::string_view name : {std::string_view(""), {"."}, {".."}, {"a/b"}, {"a\0b", 3}}) {
        CHECK_FALSE(files.At("/x").TrueChild(name).has_value());
        CHECK_FALSE(files.At("/x").Child(name).has_value());
    }
    files.AddLink("/l", "/t");
    CHECK(files.At("/").Child("l")->NativePath() == "/l"); // dangles
    files.AddFile("/t");
    CHECK(files.At("/").Child("l")->NativePath() == "/t");
    files.volumes.push_back({"Stick", "/media/u/Stick"});
    CHECK_FALSE(files.At("/").Parent().has_value());
    CHECK(files.At("/a").Parent()->Name() == "Root");
    CHECK(files.At("/media/u/Stick/x").Parent()->Name() == "Stick");
    CHECK_FALSE(files.At("/media/u/Stick").Parent().has_value());
}

#include "platform/FolderItem.h"
#include "support/MemoryFileSystem.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

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

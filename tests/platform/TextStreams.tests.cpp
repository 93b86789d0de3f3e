#include "platform/IOException.h"
#include "platform/TextInputStream.h"
#include "platform/TextOutputStream.h"
#include "platform/Utf8.h"
#include "support/MemoryFileSystem.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

namespace {

using Lines = std::vector<std::string>;

Lines ReadAll(const std::string& bytes, std::size_t chunkSize = 65536) {
    TextInputStream stream(std::make_unique<MemoryInputFile>(bytes), chunkSize);
    Lines lines;
    while (!stream.AtEnd()) {
        lines.push_back(stream.ReadLine());
    }
    return lines;
}

} // namespace

TEST_CASE("A line ends with any of the three endings, wherever a chunk's border falls") {
    for (std::size_t chunkSize = 3; chunkSize < 16; ++chunkSize) {
        CAPTURE(chunkSize);
        CHECK(ReadAll("a\nbc\r\n\r\nd\r\re\n\rf\r\n", chunkSize) ==
              Lines{"a", "bc", "", "d", "", "e", "", "f"});
        CHECK(ReadAll("\xEF\xBB\xBF"
                      "first\r\nlast without an end",
                  chunkSize) == Lines{"first", "last without an end"});
        CHECK(ReadAll("abc\xEF\xBB\xBF\n", chunkSize) == Lines{"abc\xEF\xBB\xBF"});
        CHECK(ReadAll("\r\n", chunkSize) == Lines{""});
        CHECK(ReadAll("\xEF\xBB\xBF", chunkSize).empty());
    }
}

TEST_CASE("A line beyond the caller's limit is a failure, one of just that length is not") {
    const auto read = [](const std::string& bytes) {
        return TextInputStream(std::make_unique<MemoryInputFile>(bytes), 4).ReadLine(10);
    };
    CHECK(read("0123456789\nmore") == "0123456789");
    CHECK_THROWS_AS(read("0123456789x\n"), IOException);
}

TEST_CASE("For showing, each byte outside a UTF-8 sequence is replaced") {
    const std::string r = "\uFFFD";
    for (const std::string valid : {"", "abc", "é", "€", "😀", "\uD7FF\uE000", "\xF4\x8F\xBF\xBF"}) {
        CHECK(WithoutInvalidUtf8(valid) == valid);
    }
    CHECK(WithoutInvalidUtf8("\xC0\xAF") == r + r);
    CHECK(WithoutInvalidUtf8("\xE0\x9F\xBF") == r + r + r);
    CHECK(WithoutInvalidUtf8("\xED\xA0\x80") == r + r + r);
    CHECK(WithoutInvalidUtf8("\xF4\x90\x80\x80") == r + r + r + r);
    CHECK(WithoutInvalidUtf8("\xE2\x82x") == r + r + "x");
}

TEST_CASE("A text file takes its place only when it is closed") {
    MemoryFileSystem files;
    files.AddFile("/a", "old");
    const auto item = FolderItem::FromNativePath(files, "/a").value();
    {
        auto stream = TextOutputStream::Create(item);
        stream.Write("new");
    }
    CHECK(files.entries["/a"].content == "old");
    auto stream = TextOutputStream::Create(item);
    stream.Write("one\n");
    stream.Write("two");
    stream.Close();
    CHECK(files.entries["/a"].content == "one\ntwo");
}

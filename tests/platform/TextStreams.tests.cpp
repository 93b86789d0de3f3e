#include "platform/TextStreams.h"
#include "platform/FileSystem.h"
#include "support/MemoryFileSystem.h"

#include <doctest/doctest.h>

using namespace tessarolyne;

namespace {

using Lines = std::vector<std::string>;

Lines ReadAll(const std::string& bytes, std::size_t chunkSize) {
    TextInputStream stream(std::make_unique<MemoryInputFile>(bytes), chunkSize);
    Lines lines;
    while (!stream.AtEnd()) {
        lines.push_back(stream.ReadLine());
    }
    return lines;
}

} // namespace

TEST_CASE("A line ends with any of the three endings, wherever a chunk's border falls") {
    const std::string mark = "\xEF\xBB\xBF"; // of the byte order, only at the start
    for (std::size_t chunkSize = 3; chunkSize < 16; ++chunkSize) {
        CAPTURE(chunkSize);
        CHECK(ReadAll("a\nbc\r\n\r\nd\r\re\n\rf\r\n", chunkSize) ==
              Lines{"a", "bc", "", "d", "", "e", "", "f"});
        CHECK(ReadAll(mark + "first\r\nlast, no end", chunkSize) == Lines{"first", "last, no end"});
        CHECK(ReadAll("abc" + mark + "\n", chunkSize) == Lines{"abc" + mark});
        CHECK(ReadAll("\r\n", chunkSize) == Lines{""});
        CHECK(ReadAll(mark, chunkSize).empty());
    }
    const auto limited = [](const std::string& bytes) {
        return TextInputStream(std::make_unique<MemoryInputFile>(bytes), 4).ReadLine(10);
    };
    CHECK(limited("0123456789\nmore") == "0123456789");
    CHECK_THROWS_AS(limited("0123456789x\n"), IOException); // no endless line takes the memory
}

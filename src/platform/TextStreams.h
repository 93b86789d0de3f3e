#pragma once

#include "platform/FileSystem.h"
#include "platform/FolderItem.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tessarolyne {

// Reads a text file line by line; a line ends with CR, LF or CRLF, the last one also with the file. A UTF-8
// byte order mark at the start is skipped. Bytes that aren't UTF-8 come through unchanged, so that the name
// of a file stays that name; who shows them replaces them. Memory is one chunk and the line.
class TextInputStream {
public:
    static constexpr std::size_t noLimit = static_cast<std::size_t>(-1);

    // Throws IOException, also for all but regular files.
    static TextInputStream Open(const FolderItem& item);
    // The chunk must hold a byte order mark: at least 3 bytes.
    explicit TextInputStream(std::unique_ptr<InputFile> file, std::size_t chunkSize = 65536);

    // Whether no line is left. This and ReadLine throw IOException.
    bool AtEnd();
    // The next line without its ending; empty at the end. A line of more than `longest` bytes is a failure.
    std::string ReadLine(std::size_t longest = noLimit);

private:
    bool Fill();

    std::unique_ptr<InputFile> file_;
    std::vector<char> chunk_;
    std::size_t next_ = 0;
    std::size_t end_ = 0;
    bool atStart_ = true;
    bool afterCarriageReturn_ = false;
};

} // namespace tessarolyne

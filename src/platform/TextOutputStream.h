#pragma once

#include "platform/FileSystem.h"
#include "platform/FolderItem.h"

#include <memory>
#include <string_view>

namespace tessarolyne {

// Writes a UTF-8 text file that replaces the old one only as a whole, at Close. Each call throws IOException;
// a stream that goes without a Close, or whose call threw, leaves the old file as it was.
class TextOutputStream {
public:
    static TextOutputStream Create(const FolderItem& item, LinkPolicy links = LinkPolicy::ReplaceTarget);

    void Write(std::string_view text) { file_->Write(text); }
    // When it returns, the new file stands in its place, whole and on the disk.
    void Close() { file_->Commit(); }

private:
    explicit TextOutputStream(std::unique_ptr<OutputFile> file) : file_(std::move(file)) {}

    std::unique_ptr<OutputFile> file_;
};

} // namespace tessarolyne

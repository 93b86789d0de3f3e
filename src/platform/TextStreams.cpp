#include "platform/TextStreams.h"

#include "platform/FileSystem.h"

#include <string_view>
#include <utility>

namespace tessarolyne {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

} // namespace

TextInputStream TextInputStream::Open(const FolderItem& item) {
    return TextInputStream(item.Files().OpenForReading(item.NativePath()));
}

TextInputStream::TextInputStream(std::unique_ptr<InputFile> file, std::size_t chunkSize)
    : file_(std::move(file)), chunk_(chunkSize) {}

// Sees to it that a byte of text is at hand; false at the end. Here the mark at the start and the second half
// of a CRLF go, wherever a chunk's border cuts the pair.
bool TextInputStream::Fill() {
    while (true) {
        while (next_ == end_) {
            next_ = 0;
            end_ = file_->Read(chunk_);
            if (end_ == 0) {
                return false;
            }
            const std::string_view text(chunk_.data(), end_);
            if (std::exchange(atStart_, false) && text.starts_with(byteOrderMark)) {
                next_ = byteOrderMark.size();
            }
        }
        if (!std::exchange(afterCarriageReturn_, false) || chunk_[next_] != '\n') {
            return true;
        }
        ++next_;
    }
}

bool TextInputStream::AtEnd() {
    return !Fill();
}

std::string TextInputStream::ReadLine(std::size_t longest) {
    std::string line;
    while (Fill()) {
        const std::string_view rest(chunk_.data() + next_, end_ - next_);
        std::size_t length = 0;
        while (length < rest.size() && rest[length] != '\n' && rest[length] != '\r') {
            ++length;
        }
        if (length > longest - line.size()) {
            throw IOException("a line is too long");
        }
        line.append(rest.substr(0, length));
        next_ += length;
        if (length < rest.size()) {
            afterCarriageReturn_ = rest[length] == '\r';
            ++next_;
            break;
        }
    }
    return line;
}

} // namespace tessarolyne

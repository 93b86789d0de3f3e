#include "platform/HttpAnswer.h"

#include "platform/Text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace tessarolyne {

namespace {

constexpr std::size_t untilClose = std::numeric_limits<std::size_t>::max();

// A whole number and nothing else.
template <typename Number>
bool ReadNumber(std::string_view text, Number& number, int base = 10) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size() && text[0] != '-';
}

// The code of "HTTP/1.1 200 OK"; 0 if that isn't a status line.
int StatusOf(std::string_view line) {
    constexpr std::size_t codeStart = 9;
    constexpr std::size_t codeLength = 3;
    int status = 0;
    const bool isStatusLine = line.starts_with("HTTP/1.") && line.size() >= codeStart + codeLength &&
                              line[codeStart - 1] == ' ' &&
                              (line.size() == codeStart + codeLength || line[codeStart + codeLength] == ' ');
    return isStatusLine && ReadNumber(line.substr(codeStart, codeLength), status) ? status : 0;
}

} // namespace

void HttpAnswer::Add(std::string_view bytes) {
    bytes_ += bytes;
    while (!IsOver() && TakePart()) {
    }
}

// False if it needs more bytes.
bool HttpAnswer::TakePart() {
    if (part_ == Part::Content) {
        return TakeContent();
    }
    const auto line = TakeLine();
    if (!line) {
        return false;
    }
    if (part_ == Part::Status) {
        page_ = {};
        page_.status = StatusOf(*line);
        part_ = page_.status == 0 ? Part::Broken : Part::Header;
    } else if (part_ == Part::Header) {
        part_ = ReadHeader(*line);
    } else if (part_ == Part::ChunkSize) {
        part_ = ReadChunkSize(*line);
    } else if (part_ == Part::ChunkEnd) {
        part_ = line->empty() ? Part::ChunkSize : Part::Broken;
    } else {
        part_ = line->empty() ? Part::Over : Part::Trailer;
    }
    return true;
}

bool HttpAnswer::TakeContent() {
    const std::size_t size = std::min(left_, bytes_.size() - taken_);
    page_.content.append(bytes_, taken_, size);
    taken_ += size;
    left_ -= left_ == untilClose ? 0 : size;
    if (left_ == 0) {
        part_ = chunked_ ? Part::ChunkEnd : Part::Over;
    }
    return left_ == 0;
}

// The next line without its end; none while it isn't whole.
std::optional<std::string_view> HttpAnswer::TakeLine() {
    const auto end = bytes_.find('\n', std::max(taken_, scanned_));
    if (end == std::string::npos) {
        scanned_ = bytes_.size();
        return std::nullopt;
    }
    std::string_view line = std::string_view(bytes_).substr(taken_, end - taken_);
    taken_ = end + 1;
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

// Broken by one after which nobody could tell where the page ends.
HttpAnswer::Part HttpAnswer::ReadHeader(std::string_view line) {
    const bool interim = page_.status >= 100 && page_.status < 200;
    if (line.empty()) {
        left_ = length_.value_or(untilClose);
        return interim ? Part::Status : chunked_ ? Part::ChunkSize : Part::Content;
    }
    page_.headers.append(line).append("\n");
    const auto colon = line.find(':');
    if (interim || colon == std::string_view::npos) {
        return Part::Header;
    }
    const std::string name = Uppercase(line.substr(0, colon));
    const std::string value = Trim(line.substr(colon + 1));
    bool clear = true;
    if (name == "TRANSFER-ENCODING") {
        clear = chunked_ = Uppercase(value) == "CHUNKED";
    } else if (name == "CONTENT-LENGTH") {
        std::size_t length = 0;
        clear = ReadNumber(value, length) && length_.value_or(length) == length;
        length_ = length;
    }
    return clear ? Part::Header : Part::Broken;
}

// What may follow the size says nothing to us.
HttpAnswer::Part HttpAnswer::ReadChunkSize(std::string_view line) {
    if (!ReadNumber(Trim(line.substr(0, line.find(';'))), left_, 16)) {
        return Part::Broken;
    }
    return left_ == 0 ? Part::Trailer : Part::Content;
}

std::optional<HttpReply> HttpAnswer::Page(bool closed) const {
    const bool endsWithConnection = part_ == Part::Content && !chunked_ && !length_;
    if (part_ == Part::Over || (closed && endsWithConnection)) {
        return page_;
    }
    return std::nullopt;
}

} // namespace tessarolyne

#include "platform/HttpAnswer.h"

#include "platform/Text.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace tessarolyne {

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view emptyLine = "\r\n\r\n";

// A whole number and nothing else.
template <typename Number>
bool ReadNumber(std::string_view text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
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
    const std::size_t from = bytes_.size() - std::min(bytes_.size(), emptyLine.size() - 1);
    bytes_ += bytes;
    if (pageStart_ != 0 || broken_) {
        return;
    }
    if (const auto end = bytes_.find(emptyLine, from); end != std::string::npos) {
        pageStart_ = end + emptyLine.size();
        ReadHeader();
    }
}

void HttpAnswer::ReadHeader() {
    constexpr std::string_view lengthName = "CONTENT-LENGTH:";
    std::string_view header = std::string_view(bytes_).substr(0, pageStart_ - lineEnd.size());
    status_ = StatusOf(header.substr(0, header.find(lineEnd)));
    broken_ = status_ == 0;
    while (!header.empty()) {
        const std::string_view line = header.substr(0, header.find(lineEnd));
        header.remove_prefix(line.size() + lineEnd.size());
        if (Uppercase(line.substr(0, lengthName.size())) == lengthName) {
            std::size_t length = 0;
            broken_ = broken_ || !ReadNumber(Trim(line.substr(lengthName.size())), length) ||
                      length_.value_or(length) != length;
            length_ = length;
        }
    }
}

bool HttpAnswer::IsOver() const {
    return broken_ || (length_ && bytes_.size() - pageStart_ >= *length_);
}

std::optional<HttpReply> HttpAnswer::Page(bool closed) const {
    if (broken_ || pageStart_ == 0 || !(IsOver() || (closed && !length_))) {
        return std::nullopt;
    }
    HttpReply reply;
    reply.status = status_;
    reply.headers = bytes_.substr(0, pageStart_);
    reply.content = bytes_.substr(pageStart_, length_.value_or(std::string::npos));
    return reply;
}

} // namespace tessarolyne

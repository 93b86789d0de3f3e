#include "platform/Http.h"

#include "platform/Text.h"

#include <charconv>
#include <cstddef>
#include <system_error>

namespace tessarolyne {

namespace {

// A whole number and nothing else.
template <typename Number>
bool ReadNumber(std::string_view text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() && text[0] != '-';
}

// The code of "HTTP/1.1 200 OK"; 0 if that isn't the status line of a final answer.
int StatusOf(std::string_view line) {
    constexpr std::size_t codeStart = 9;
    constexpr std::size_t codeLength = 3;
    int status = 0;
    const bool isStatusLine = line.starts_with("HTTP/1.") && line.size() >= codeStart + codeLength &&
                              line[codeStart - 1] == ' ' &&
                              (line.size() == codeStart + codeLength || line[codeStart + codeLength] == ' ');
    return isStatusLine && ReadNumber(line.substr(codeStart, codeLength), status) && status >= 200 ? status
                                                                                                   : 0;
}

// False after a header that leaves open where the page ends.
bool TakeHeader(std::string_view line, std::optional<std::size_t>& length) {
    const auto colon = line.find(':');
    const std::string name = Uppercase(line.substr(0, colon));
    if (name != "CONTENT-LENGTH" || colon == std::string_view::npos) {
        return name != "TRANSFER-ENCODING";
    }
    std::size_t value = 0;
    const bool clear = ReadNumber(Trim(line.substr(colon + 1)), value) && length.value_or(value) == value;
    length = value;
    return clear;
}

} // namespace

void HTTPSocket::Get(const std::string& url) {
    service_.Get(url, [this, alive = std::weak_ptr(alive_)](const HttpReply& reply) {
        if (alive.expired()) {
            return;
        }
        if (reply.errorCode != 0) {
            Error(reply.errorCode);
        } else {
            PageReceived(reply.url, reply.status, reply.headers, reply.content);
        }
    });
}

std::optional<HttpReply> ReadHttpAnswer(std::string_view bytes, bool closed) {
    HttpReply page;
    std::optional<std::size_t> length;
    for (bool inHeader = true; inHeader;) {
        const auto end = bytes.find('\n');
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        const auto line = bytes.substr(0, end > 0 && bytes[end - 1] == '\r' ? end - 1 : end);
        bytes.remove_prefix(end + 1);
        if (page.status == 0) {
            page.status = StatusOf(line);
            inHeader = page.status != 0;
        } else if (line.empty()) {
            inHeader = false;
        } else if (TakeHeader(line, length)) {
            page.headers.append(line).append("\n");
        } else {
            return std::nullopt;
        }
    }
    if (page.status == 0 || (length ? bytes.size() < *length : !closed)) {
        return std::nullopt;
    }
    page.content = bytes.substr(0, length.value_or(bytes.size()));
    return page;
}

} // namespace tessarolyne

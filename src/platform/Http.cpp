#include "platform/Http.h"

#include "platform/Text.h"

#include <charconv>
#include <cstddef>
#include <system_error>

namespace tessarolyne {

namespace {

// "HTTP/1.1 200 OK", whatever the code; those that begin with 1 are interim.
bool IsFinalStatus(std::string_view line) {
    constexpr std::size_t code = 9;
    return line.starts_with("HTTP/1.") && line.size() > code && line[code] >= '2' && line[code] <= '9';
}

// False after a header that leaves open where the page ends.
bool TakeHeader(std::string_view line, std::optional<std::size_t>& length) {
    const auto colon = line.find(':');
    const std::string name = Uppercase(line.substr(0, colon));
    if (name != "CONTENT-LENGTH" || colon == std::string_view::npos) {
        return name != "TRANSFER-ENCODING";
    }
    const std::string text = Trim(line.substr(colon + 1));
    const char* const last = text.data() + text.size();
    std::size_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), last, value);
    const bool isClear = error == std::errc() && end == last && length.value_or(value) == value;
    length = value;
    return isClear;
}

} // namespace

std::optional<std::string> ReadHttpAnswer(std::string_view bytes, bool closed) {
    std::optional<std::size_t> length;
    std::string_view line;
    for (bool isFirst = true; isFirst || !line.empty(); isFirst = false) {
        const auto end = bytes.find('\n');
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        line = bytes.substr(0, end > 0 && bytes[end - 1] == '\r' ? end - 1 : end);
        bytes.remove_prefix(end + 1);
        if (isFirst ? !IsFinalStatus(line) : !TakeHeader(line, length)) {
            return std::nullopt;
        }
    }
    if (length ? bytes.size() < *length : !closed) {
        return std::nullopt;
    }
    return std::string(bytes.substr(0, length.value_or(bytes.size())));
}

} // namespace tessarolyne

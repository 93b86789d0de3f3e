#include "platform/Text.h"

#include "platform/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace tessarolyne {

namespace {

constexpr std::int64_t toTheEnd = std::numeric_limits<std::int64_t>::max();

// The byte at which the text's character number `count` begins, counted from 0; the size past its end.
std::size_t ByteAfter(std::string_view text, std::int64_t count) {
    std::size_t at = 0;
    for (; count > 0 && at < text.size(); --count) {
        at += CharacterAt(text, at).size;
    }
    return at;
}

} // namespace

std::int64_t Len(std::string_view text) {
    std::int64_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++count) {
        at += CharacterAt(text, at).size;
    }
    return count;
}

std::string Mid(std::string_view text, std::int64_t start) {
    return Mid(text, start, toTheEnd);
}

std::string Mid(std::string_view text, std::int64_t start, std::int64_t length) {
    text.remove_prefix(ByteAfter(text, std::max<std::int64_t>(start, 1) - 1));
    return std::string(text.substr(0, ByteAfter(text, length)));
}

std::string Left(std::string_view text, std::int64_t length) {
    return Mid(text, 1, length);
}

std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view with) {
    if (find.empty()) {
        return std::string(text);
    }
    std::string result;
    result.reserve(text.size());
    std::size_t from = 0;
    for (std::size_t at; (at = text.find(find, from)) != std::string_view::npos; from = at + find.size()) {
        result.append(text, from, at - from).append(with);
    }
    return result.append(text, from);
}

std::string LTrim(std::string_view text) {
    return std::string(text.substr(std::min(text.find_first_not_of(' '), text.size())));
}

std::string Trim(std::string_view text) {
    return LTrim(text.substr(0, text.find_last_not_of(' ') + 1));
}

std::string WithoutBlanks(std::string_view text) {
    std::string result(text);
    std::erase(result, ' ');
    return result;
}

std::int64_t CountFields(std::string_view text, std::string_view delimiter) {
    std::int64_t count = 1;
    if (delimiter.empty()) {
        return count;
    }
    for (std::size_t at = 0; (at = text.find(delimiter, at)) != std::string_view::npos;
         at += delimiter.size()) {
        ++count;
    }
    return count;
}

std::string NthField(std::string_view text, std::string_view delimiter, std::int64_t field) {
    if (field < 1) {
        return {};
    }
    for (; field > 1; --field) {
        const std::size_t at = delimiter.empty() ? std::string_view::npos : text.find(delimiter);
        if (at == std::string_view::npos) {
            return {};
        }
        text.remove_prefix(at + delimiter.size());
    }
    return std::string(delimiter.empty() ? text : text.substr(0, text.find(delimiter)));
}

std::string Uppercase(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Character character = CharacterAt(text, at);
        AppendCharacter(result, UppercaseOf(character.code));
        at += character.size;
    }
    return result;
}

std::string Chr(std::int64_t code) {
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    const bool known = code >= 0 && code <= 0x10FFFF && !surrogate;
    std::string result;
    AppendCharacter(result, known ? static_cast<char32_t>(code) : U'\uFFFD');
    return result;
}

std::string EncodeURLComponent(std::string_view text, std::string_view alsoKept) {
    constexpr std::string_view unreservedMarks = "-._~";
    constexpr std::string_view hexDigits = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        if (IsLetter(c) || IsDigit(c) || unreservedMarks.find(c) != std::string_view::npos ||
            alsoKept.find(c) != std::string_view::npos) {
            encoded += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            encoded += '%';
            encoded += hexDigits[byte >> 4];
            encoded += hexDigits[byte & 15];
        }
    }
    return encoded;
}

std::string ReplaceLineEndings(std::string_view text, std::string_view ending) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            continue; // its LF stands for both
        }
        if (text[i] == '\r' || text[i] == '\n') {
            result += ending;
        } else {
            result += text[i];
        }
    }
    return result;
}

std::string OneLine(std::string_view text) {
    std::string result;
    bool isBroken = false;
    for (std::size_t at = 0; at < text.size();) {
        const Character character = CharacterAt(text, at);
        const char32_t code = character.code;
        if (code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x2028 || code == 0x2029) {
            isBroken = true;
        } else {
            result += isBroken && !result.empty() ? " " : "";
            result += text.substr(at, character.size);
            isBroken = false;
        }
        at += character.size;
    }
    return result;
}

} // namespace tessarolyne

#include "platform/Text.h"

#include <algorithm>
#include <bit>

namespace tessarolyne {

namespace {

constexpr char32_t lastCode = 0x10FFFF;
constexpr char32_t invalidByte = lastCode + 1;

// Letters that stand in pairs, the capital first, from an even or an odd code on.
bool IsSecondOfPair(char32_t code) {
    const bool fromEven = (code >= 0x100 && code <= 0x12F) || (code >= 0x132 && code <= 0x137) ||
                          (code >= 0x14A && code <= 0x177);
    const bool fromOdd = (code >= 0x139 && code <= 0x148) || (code >= 0x179 && code <= 0x17E);
    return (fromEven && code % 2 == 1) || (fromOdd && code % 2 == 0);
}

// The upper-case letter; any other character unchanged.
char32_t UppercaseOf(char32_t code) {
    constexpr char32_t divisionSign = 0xF7;
    constexpr char32_t yWithDiaeresis = 0xFF;
    if ((code >= 'a' && code <= 'z') || (code >= 0xE0 && code < yWithDiaeresis && code != divisionSign)) {
        return code - 0x20;
    }
    if (code == yWithDiaeresis) {
        return 0x178;
    }
    return IsSecondOfPair(code) ? code - 1 : code;
}

// Puts the character with this code, as CharacterAt gives it, at the end of the text.
void AppendCharacter(std::string& text, char32_t code) {
    if (code < 0x80 || code >= invalidByte) {
        text += static_cast<char>(code < 0x80 ? code : code - invalidByte);
        return;
    }
    unsigned following = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    text += static_cast<char>((0xFFU << (7 - following)) | (code >> (6 * following)));
    while (following-- > 0) {
        text += static_cast<char>(0x80 | ((code >> (6 * following)) & 0x3F));
    }
}

// The text with what `change` makes of each character's code.
template <class Change>
std::string WithCodes(std::string_view text, Change change) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Character character = CharacterAt(text, at);
        AppendCharacter(result, change(character.code));
        at += character.size;
    }
    return result;
}

// The byte at which the text's character number `count` begins, counted from 0; the size past its end.
std::size_t ByteAfter(std::string_view text, std::int64_t count) {
    std::size_t at = 0;
    for (; count > 0 && at < text.size(); --count) {
        at += CharacterAt(text, at).size;
    }
    return at;
}

} // namespace

Character CharacterAt(std::string_view text, std::size_t at) {
    // The least code that needs a sequence of this many bytes; a smaller one in it is overlong.
    constexpr char32_t leastCode[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(text[at]);
    if (lead < 0x80) {
        return {lead, 1};
    }
    const Character invalid{invalidByte + lead, 1};
    const auto size = static_cast<std::size_t>(std::countl_one(lead));
    if (size < 2 || size > 4 || text.size() - at < size) {
        return invalid;
    }
    char32_t code = lead & (0x7FU >> size);
    for (const char c : text.substr(at + 1, size - 1)) {
        const auto next = static_cast<unsigned char>(c);
        if ((next & 0xC0) != 0x80) {
            return invalid;
        }
        code = (code << 6) | (next & 0x3FU);
    }
    const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
    return code >= leastCode[size] && code <= lastCode && !isSurrogate ? Character{code, size} : invalid;
}

std::string Uppercase(std::string_view text) {
    return WithCodes(text, UppercaseOf);
}

std::string WithoutInvalidUtf8(std::string_view text) {
    return WithCodes(text, [](char32_t code) { return code > lastCode ? U'\uFFFD' : code; });
}

std::int64_t Len(std::string_view text) {
    std::int64_t count = 0;
    for (std::size_t at = 0; at < text.size(); ++count) {
        at += CharacterAt(text, at).size;
    }
    return count;
}

std::string Mid(std::string_view text, std::int64_t start, std::int64_t length) {
    text.remove_prefix(ByteAfter(text, std::max<std::int64_t>(start, 1) - 1));
    return Left(text, length);
}

std::string Left(std::string_view text, std::int64_t length) {
    return std::string(text.substr(0, ByteAfter(text, length)));
}

std::string ReplaceAll(std::string_view text, std::string_view find, std::string_view with) {
    std::string result;
    for (const std::string_view piece : Split(text, find)) {
        result.append(piece).append(with);
    }
    result.resize(result.size() - with.size());
    return result;
}

std::string Trim(std::string_view text) {
    text = text.substr(0, text.find_last_not_of(' ') + 1);
    return std::string(text.substr(std::min(text.find_first_not_of(' '), text.size())));
}

std::string WithoutBlanks(std::string_view text) {
    std::string result(text);
    std::erase(result, ' ');
    return result;
}

std::vector<std::string_view> Split(std::string_view text, std::string_view delimiter) {
    std::vector<std::string_view> pieces;
    for (std::size_t at; (at = text.find(delimiter)) != std::string_view::npos;) {
        pieces.push_back(text.substr(0, at));
        text.remove_prefix(at + delimiter.size());
    }
    pieces.push_back(text);
    return pieces;
}

std::string EncodeURLComponent(std::string_view text) {
    constexpr std::string_view unreservedMarks = "-._~";
    constexpr std::string_view hexDigits = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        if (IsLetter(c) || IsDigit(c) || unreservedMarks.find(c) != std::string_view::npos) {
            encoded += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            encoded.append({'%', hexDigits[byte >> 4], hexDigits[byte & 15]});
        }
    }
    return encoded;
}

std::string ReplaceLineEndings(std::string_view text, std::string_view ending) {
    return ReplaceAll(ReplaceAll(ReplaceAll(text, "\r\n", "\n"), "\r", "\n"), "\n", ending);
}

std::string OneLine(std::string_view text) {
    std::string result;
    bool isBroken = false;
    for (std::size_t at = 0; at < text.size();) {
        const auto [code, size] = CharacterAt(text, at);
        if (code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x2028 || code == 0x2029) {
            isBroken = true;
        } else {
            result += isBroken && !result.empty() ? " " : "";
            result += text.substr(at, size);
            isBroken = false;
        }
        at += size;
    }
    return result;
}

} // namespace tessarolyne

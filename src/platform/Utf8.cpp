#include "platform/Utf8.h"

namespace tessarolyne {

namespace {

constexpr char32_t lastCode = 0x10FFFF;
constexpr char32_t invalidByte = lastCode + 1;

constexpr unsigned char ByteOf(char c) {
    return static_cast<unsigned char>(c);
}

// The least code that needs a sequence of this many bytes; a smaller one in it is overlong.
constexpr char32_t leastCode[] = {0, 0, 0x80, 0x800, 0x10000};

std::size_t SequenceSize(unsigned char lead) {
    if (lead >= 0xF0 && lead < 0xF8) {
        return 4;
    }
    if (lead >= 0xE0) {
        return lead < 0xF0 ? 3 : 0;
    }
    return lead >= 0xC0 ? 2 : 0;
}

bool IsValid(char32_t code, std::size_t size) {
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code >= leastCode[size] && code <= lastCode && !surrogate;
}

// Letters that stand in pairs, the capital first, from an even or an odd code on.
bool IsSecondOfPair(char32_t code) {
    const bool fromEven = (code >= 0x100 && code <= 0x12F) || (code >= 0x132 && code <= 0x137) ||
                          (code >= 0x14A && code <= 0x177);
    const bool fromOdd = (code >= 0x139 && code <= 0x148) || (code >= 0x179 && code <= 0x17E);
    return (fromEven && code % 2 == 1) || (fromOdd && code % 2 == 0);
}

} // namespace

Character CharacterAt(std::string_view text, std::size_t at) {
    const unsigned char lead = ByteOf(text[at]);
    if (lead < 0x80) {
        return {lead, 1};
    }
    const Character invalid{invalidByte + lead, 1};
    const std::size_t size = SequenceSize(lead);
    if (size == 0 || text.size() - at < size) {
        return invalid;
    }
    char32_t code = lead & (0x7Fu >> size);
    for (std::size_t i = 1; i < size; ++i) {
        const unsigned char next = ByteOf(text[at + i]);
        if ((next & 0xC0) != 0x80) {
            return invalid;
        }
        code = (code << 6) | (next & 0x3Fu);
    }
    return IsValid(code, size) ? Character{code, size} : invalid;
}

void AppendCharacter(std::string& text, char32_t code) {
    const auto append = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (code < 0x80) {
        append(code);
    } else if (code >= invalidByte) {
        append(code - invalidByte);
    } else if (code < 0x800) {
        append(0xC0 | (code >> 6));
        append(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        append(0xE0 | (code >> 12));
        append(0x80 | ((code >> 6) & 0x3F));
        append(0x80 | (code & 0x3F));
    } else {
        append(0xF0 | (code >> 18));
        append(0x80 | ((code >> 12) & 0x3F));
        append(0x80 | ((code >> 6) & 0x3F));
        append(0x80 | (code & 0x3F));
    }
}

char32_t UppercaseOf(char32_t code) {
    constexpr char32_t divisionSign = 0xF7;
    constexpr char32_t yWithDiaeresis = 0xFF;
    if (code >= 'a' && code <= 'z') {
        return code - 0x20;
    }
    if (code < 0xE0) {
        return code;
    }
    if (code == yWithDiaeresis) {
        return 0x178;
    }
    if (code < yWithDiaeresis) {
        return code == divisionSign ? code : code - 0x20;
    }
    return IsSecondOfPair(code) ? code - 1 : code;
}

std::string WithoutInvalidUtf8(std::string_view text) {
    constexpr char32_t lastCodePoint = 0x10FFFF;
    constexpr char32_t replacementCharacter = 0xFFFD;
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Character character = CharacterAt(text, at);
        AppendCharacter(result, character.code > lastCodePoint ? replacementCharacter : character.code);
        at += character.size;
    }
    return result;
}

} // namespace tessarolyne

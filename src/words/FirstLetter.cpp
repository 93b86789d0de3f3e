#include "words/FirstLetter.h"

#include <cstddef>

namespace tessarolyne {

namespace {

bool Continues(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

std::size_t LengthByLeadByte(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) {
        return 2;
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        return 3;
    }
    return lead >= 0xF0 && lead <= 0xF4 ? 4 : 1;
}

// Simple case mapping of the Unicode Character Database for U+0080 to U+017F. Latin Extended-A holds its
// letters in pairs, the small one after its capital; three ranges begin on an even code point and two on an
// odd one.
unsigned CapitalOf(unsigned code) {
    if (code >= 0xE0 && code <= 0xFE && code != 0xF7) {
        return code - 0x20;
    }
    switch (code) {
    case 0xFF: // ÿ
        return 0x178;
    case 0x131: // ı
        return 'I';
    case 0x17F: // ſ
        return 'S';
    default:
        break;
    }
    const bool evenCapitals = (code >= 0x100 && code <= 0x137) || (code >= 0x14A && code <= 0x177);
    const bool oddCapitals = (code >= 0x139 && code <= 0x148) || (code >= 0x179 && code <= 0x17E);
    if ((evenCapitals && code % 2 == 1) || (oddCapitals && code % 2 == 0)) {
        return code - 1;
    }
    return code;
}

std::string Utf8(unsigned code) {
    if (code < 0x80) {
        return {static_cast<char>(code)};
    }
    return {static_cast<char>(0xC0U | (code >> 6U)), static_cast<char>(0x80U | (code & 0x3FU))};
}

} // namespace

std::string_view FirstLetter(std::string_view text) {
    if (text.empty()) {
        return text;
    }
    const std::size_t length = LengthByLeadByte(static_cast<unsigned char>(text.front()));
    for (std::size_t i = 1; i < length; ++i) {
        if (i >= text.size() || !Continues(text[i])) {
            return text.substr(0, 1);
        }
    }
    return text.substr(0, length);
}

std::string UpperCaseLetter(std::string_view letter) {
    if (letter.size() == 1 && letter[0] >= 'a' && letter[0] <= 'z') {
        return {static_cast<char>(letter[0] - 'a' + 'A')};
    }
    if (letter.size() != 2 || !Continues(letter[1]) ||
        LengthByLeadByte(static_cast<unsigned char>(letter[0])) != 2) {
        return std::string(letter);
    }
    const unsigned code = (static_cast<unsigned char>(letter[0]) & 0x1FU) << 6U |
                          (static_cast<unsigned char>(letter[1]) & 0x3FU);
    return code < 0x180 ? Utf8(CapitalOf(code)) : std::string(letter);
}

} // namespace tessarolyne

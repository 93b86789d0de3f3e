#include "platform/System.h"

#include "platform/Text.h"

#include <algorithm>

namespace tessarolyne {

namespace {

// "fr" and "ch"; the region may be empty, and both are for what names no language ("C", "POSIX").
struct Tag {
    std::string language;
    std::string region;
    bool operator==(const Tag&) const = default;
};

// In lower case, without codeset and modifier, "-" between the parts.
std::string Plain(std::string_view tag) {
    std::string plain(tag.substr(0, tag.find_first_of(".@")));
    for (char& c : plain) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        } else if (c == '_') {
            c = '-';
        }
    }
    return plain;
}

// ISO 3166 or UN M.49.
bool IsRegion(std::string_view part) {
    return (part.size() == 2 && std::all_of(part.begin(), part.end(), IsLetter)) ||
           (part.size() == 3 && std::all_of(part.begin(), part.end(), IsDigit));
}

Tag Read(std::string_view text) {
    const std::string plain = Plain(text);
    Tag tag;
    for (std::size_t begin = 0; begin <= plain.size();) {
        const std::size_t end = std::min(plain.find('-', begin), plain.size());
        const std::string part = plain.substr(begin, end - begin);
        if (begin == 0) {
            // ISO 639 has two or three letters.
            if (part.size() < 2 || part.size() > 3 || !std::all_of(part.begin(), part.end(), IsLetter)) {
                break;
            }
            tag.language = part;
        } else if (part.size() == 1) {
            break; // extensions follow
        } else if (IsRegion(part)) {
            tag.region = part;
            break;
        }
        begin = end + 1;
    }
    return tag;
}

} // namespace

namespace System {

namespace {

constexpr std::string_view fallbackMark = "‡";

const Translations* current = nullptr;

} // namespace

void UseTranslations(const Translations* translations) {
    current = translations;
}

std::string GetLocalizedString(std::string_view key, std::string_view fallback, std::string_view language) {
    if (current != nullptr) {
        if (auto text = current->Find(key, language)) {
            return *text;
        }
    }
    if (fallback.starts_with(fallbackMark)) {
        fallback.remove_prefix(fallbackMark.size());
    }
    return std::string(fallback);
}

} // namespace System

std::vector<std::string> CatalogueChain(const std::vector<std::string>& wanted,
    const std::vector<std::string>& available, std::string_view builtIn) {
    for (const std::string& text : wanted) {
        const Tag tag = Read(text);
        if (tag.language.empty()) {
            continue;
        }
        std::vector<std::string> chain;
        const auto add = [&](const Tag& name) {
            const auto found = std::find_if(available.begin(), available.end(),
                [&](const std::string& candidate) { return Read(candidate) == name; });
            if (found != available.end()) {
                chain.push_back(*found);
            }
        };
        if (!tag.region.empty()) {
            add(tag);
        }
        add({tag.language, {}});
        if (!chain.empty() || tag.language == builtIn) {
            return chain;
        }
    }
    return {};
}

} // namespace tessarolyne

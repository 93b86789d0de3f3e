#include "platform/System.h"

#include "platform/Text.h"

#include <algorithm>

namespace tessarolyne {

namespace {

// "FR" and "CH"; the region may be empty, and both are for what names no language ("C", "POSIX").
struct Tag {
    std::string language;
    std::string region;
    bool operator==(const Tag&) const = default;
};

bool IsAll(std::string_view part, bool (*is)(char)) {
    return std::all_of(part.begin(), part.end(), is);
}

Tag Read(std::string_view text) {
    std::string plain = Uppercase(text.substr(0, text.find_first_of(".@"))); // no codeset, no modifier
    std::replace(plain.begin(), plain.end(), '_', '-');
    Tag tag;
    for (const std::string_view part : Split(plain, "-")) {
        if (tag.language.empty()) {
            // ISO 639 has two or three letters.
            if (part.size() < 2 || part.size() > 3 || !IsAll(part, IsLetter)) {
                break;
            }
            tag.language = part;
        } else if (part.size() == 1) {
            break; // extensions follow
        } else if ((part.size() == 2 && IsAll(part, IsLetter)) ||
                   (part.size() == 3 && IsAll(part, IsDigit))) {
            tag.region = part; // ISO 3166 or UN M.49
            break;
        }
    }
    return tag;
}

constexpr std::string_view fallbackMark = "‡";

const Translations* current = nullptr;

} // namespace

namespace System {

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
        if (!chain.empty() || tag.language == Read(builtIn).language) {
            return chain;
        }
    }
    return {};
}

} // namespace tessarolyne

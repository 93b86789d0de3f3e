#include "ui/HelpTags.h"

#include "platform/Window.h"
#include "ui/Localisation.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace tessarolyne {

namespace {

using Text = std::pair<std::string_view, std::string (*)(std::string_view)>;
constexpr Text texts[] = {
#define TEXT(name, text) {#name, &Localisation::name},
#include "ui/Localisation.def"
#undef TEXT
};

// Those that share a text, or have it under another name than their own.
constexpr std::pair<std::string_view, std::string_view> namesOfTexts[] = {
    {"StaticTextEnBase10", "EditFieldNbre"}, {"PushButtonPressPapBOrg", "PushButtonPressPap"},
    {"PushButtonPressPapBDest", "PushButtonPressPap"}, {"EditFieldNbNbresLigne", "EdFieldNbNbresLigne"},
    {"Web1", "Web"}, {"Web2", "Web"}, {"Email1", "Email"}, {"Email2", "Email"}};

} // namespace

void ExplainControls(const Window& window) {
    for (Control* control : window.Controls()) {
        std::string_view name = control->Name;
        for (const auto& [other, nameOfText] : namesOfTexts) {
            name = other == name ? nameOfText : name;
        }
        const auto* const found = std::ranges::find(texts, std::string(name) + "_HT", &Text::first);
        if (found != std::end(texts) && control->HelpTag().empty()) {
            control->HelpTag = found->second({});
        }
    }
}

} // namespace tessarolyne

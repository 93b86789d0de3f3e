#include "ui/ProgramWindow.h"

#include "ui/Localisation.h"

#include <algorithm>

namespace tessarolyne {

namespace {

// The least Top of a window on the first screen, below a menu bar.
constexpr int smallestTop = 38;

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

ProgramWindow::ProgramWindow(Program& owner, std::string title, int width, int height, WindowFrame frame)
    : Window(owner.app, std::move(title), width, height, frame), program(owner), app(owner.app),
      fncts(owner.fncts) {}

void ProgramWindow::EnableControls() {
    for (Control* control : Controls()) {
        if (control->TakesFocus() && std::ranges::find(AlwaysEnabled, control) == AlwaysEnabled.end()) {
            control->Enabled = fncts.DrapMenu;
        }
    }
}

void ProgramWindow::ExplainControls() {
    for (Control* control : Controls()) {
        std::string_view name = control->Name;
        for (const auto& [other, nameOfText] : namesOfTexts) {
            name = other == name ? nameOfText : name;
        }
        const auto take = [](Property<std::string>& property, const std::string& nameOfText) {
            const auto* const found = std::ranges::find(texts, nameOfText, &Text::first);
            if (found != std::end(texts) && property().empty()) {
                property = found->second({});
            }
        };
        take(control->HelpTag, std::string(name) + "_HT");
        take(control->AccessibleName, "Acc_" + std::string(name));
        take(control->AltKey, "Alt_" + std::string(name));
    }
}

bool ProgramWindow::CanStandAt(const WindowPlace& place) const {
    const Stage& stage = program.services.stage;
    const ScreenSize screen = stage.Screen();
    // Compared this way round, a position near the end of its type can't overflow.
    const bool onFirst = place.left >= 0 && place.top >= smallestTop &&
                         place.left <= screen.width - place.width &&
                         place.top <= screen.height - place.height;
    return onFirst || stage.IsOnOtherScreen(place);
}

void ModalWindow::OpenModal() {
    step_.emplace(app, this);
    DrapMovableModal = true;
    DrapMenuTemp = fncts.DrapMenu;
    fncts.DrapMenu = false;
}

bool ModalWindow::Event_CancelClose(bool) {
    if (DrapMovableModal) {
        fncts.Beep();
        return true;
    }
    step_.reset();
    fncts.RestoreDrapMenu(DrapMenuTemp);
    return false;
}

void ModalWindow::EndModal() {
    DrapMovableModal = false;
    Close();
}

} // namespace tessarolyne

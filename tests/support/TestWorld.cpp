#include "support/TestWorld.h"

#include "platform/Text.h"

namespace tessarolyne {

TestWorld::TestWorld(Launch launch) {
    files.known = {{KnownFolder::Preferences, "/home/user/.config"},
        {KnownFolder::Documents, "/home/user/Documents"}, {KnownFolder::Application, "/opt/tessarolyne"}};
    for (const char* folder :
        {"/home", "/home/user", "/home/user/.config", "/home/user/Documents", "/opt/tessarolyne"}) {
        files.AddFolder(folder);
    }
    if (launch == Launch::Settled) {
        files.AddFile(preferencesFile, "Deja Envoye Don 03 :@: True\n");
    }
    program = std::make_unique<ProgramRun>(services);
    if (launch == Launch::Settled) {
        program->Start();
    }
}

TestWorld::TestWorld(const std::string& settings) : TestWorld(Launch::NotYet) {
    files.AddFile(preferencesFile, "Deja Envoye Don 03 :@: True\n" + settings);
}

bool TestWorld::HasSaved(const std::string& text) const {
    return files.entries.at(preferencesFile).content.find(text) != std::string::npos;
}

void TestWorld::Type(TextField& field, const std::string& text) {
    field.UserFocused();
    field.UserReplaced(0, static_cast<int>(Len(field.Text())), "");
    for (std::int64_t i = 1; i <= Len(text); ++i) {
        const std::string key = Mid(text, i, 1);
        if (!field.UserPressedKey(key)) {
            field.UserTyped(key);
        }
    }
    Settle();
}

void TestWorld::Settle() {
    loop.Advance(25);
    loop.Until([this] { return !Main().calculation.CalculEnCours(); });
}

} // namespace tessarolyne

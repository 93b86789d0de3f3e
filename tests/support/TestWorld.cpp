#include "support/TestWorld.h"

#include "platform/Text.h"

#include <doctest/doctest.h>

namespace tessarolyne::tests {

namespace {

constexpr std::int64_t soundLength = 100;

class TestPlaying final : public Playing {
public:
    TestPlaying(const VirtualLoop& loop) : loop_(loop), end_(loop.Milliseconds() + soundLength) {}
    bool IsPlaying() const override { return loop_.Milliseconds() < end_; }

private:
    const VirtualLoop& loop_;
    std::int64_t end_;
};

} // namespace

std::unique_ptr<Playing> TestSounds::Play(const std::string& file) {
    played.push_back(file);
    return std::make_unique<TestPlaying>(loop_);
}

ScriptedDialogs::~ScriptedDialogs() {
    CHECK_MESSAGE(StillExpected() == 0, "a dialog that was expected never came");
    CHECK_MESSAGE(expectedTells_ == 0, "a message that was expected never came");
}

void ScriptedDialogs::Expect(DialogButton answer, std::function<void()> meanwhile) {
    answers_.push_back({answer, std::move(meanwhile)});
}

DialogButton ScriptedDialogs::Ask(const MessageDialog& dialog) {
    asked.push_back(dialog);
    REQUIRE_MESSAGE(!answers_.empty(), "unexpected dialog: " << dialog.message);
    const Answer answer = answers_.front();
    answers_.pop_front();
    if (answer.meanwhile) {
        answer.meanwhile();
    }
    return answer.button;
}

void ScriptedDialogs::Tell(const std::string& text) {
    told.push_back(text);
    REQUIRE_MESSAGE(expectedTells_ > 0, "unexpected message: " << text);
    --expectedTells_;
}

std::optional<FolderItem> ScriptedDialogs::NextFile(const FileDialog& dialog) {
    fileDialogs.push_back(dialog);
    REQUIRE_MESSAGE(!fileAnswers_.empty(), "unexpected file dialog: " << dialog.prompt);
    const auto answer = fileAnswers_.front();
    fileAnswers_.pop_front();
    return answer;
}

std::optional<FolderItem> ScriptedDialogs::ChooseFile(const FileDialog& dialog) {
    return NextFile(dialog);
}

std::optional<FolderItem> ScriptedDialogs::ChooseTarget(const FileDialog& dialog) {
    return NextFile(dialog);
}

TestWorld::TestWorld(Launch launch) {
    files.known = {{KnownFolder::Preferences, "/home/user/.config"},
        {KnownFolder::Documents, "/home/user/Documents"}, {KnownFolder::Application, "/opt/tessarolyne"}};
    files.AddFolder("/home");
    files.AddFolder("/home/user");
    files.AddFolder("/home/user/.config");
    files.AddFolder("/home/user/Documents");
    files.AddFolder("/opt/tessarolyne");
    if (launch == Launch::Settled) {
        files.AddFile("/home/user/.config/Tessarolyne Prefs.txt", "Deja Envoye Don 03 :@: True\n");
    }
    program = std::make_unique<Program>(services);
    if (launch == Launch::Settled) {
        program->Start();
    }
}

TestWorld::~TestWorld() = default;

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
    loop.Until([this] { return !Main().CalculEnCours; });
}

} // namespace tessarolyne::tests

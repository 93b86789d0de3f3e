#pragma once

#include "app/ProgramRun.h"
#include "conversion/WinMain.h"
#include "support/MemoryFileSystem.h"
#include "support/VirtualLoop.h"

namespace tessarolyne {

// Two screens side by side, which show nothing.
class TestStage final : public Stage {
public:
    void Present(Window&) override {}
    ScreenSize Screen() const override { return {1280, 1024}; }
    bool IsOnOtherScreen(const WindowPlace& place) const override { return place.left >= Screen().width; }
};

// Counts beeps and remembers which sounds were started. A sound lasts 100 ms.
class TestSounds final : public Sounds {
public:
    explicit TestSounds(VirtualLoop& loop) : loop_(loop) {}
    void Beep() override { ++beeps; }
    std::function<bool()> Play(const std::string& file) override {
        played.push_back(file);
        return [this, end = loop_.Milliseconds() + 100] { return loop_.Milliseconds() < end; };
    }

    int beeps = 0;
    std::vector<std::string> played;

private:
    VirtualLoop& loop_;
};

// Answers dialogs as the test has laid down. A dialog that no test expected fails it.
class ScriptedDialogs final : public Dialogs {
public:
    ~ScriptedDialogs() override {
        CHECK_MESSAGE(answers_.size() + fileAnswers_.size() == 0, "a dialog that was expected never came");
        CHECK_MESSAGE(expectedTells_ == 0, "a message that was expected never came");
    }
    DialogButton Ask(const MessageDialog& dialog) override {
        asked.push_back(dialog);
        REQUIRE_MESSAGE(!answers_.empty(), "unexpected dialog: " << dialog.message);
        const auto [button, meanwhile] = answers_.front();
        answers_.pop_front();
        meanwhile();
        return button;
    }
    void Tell(const std::string& text) override {
        told.push_back(text);
        REQUIRE_MESSAGE(expectedTells_-- > 0, "unexpected message: " << text);
    }
    std::optional<FolderItem> Choose(const FileDialog& dialog) override {
        fileDialogs.push_back(dialog);
        REQUIRE_MESSAGE(!fileAnswers_.empty(), "unexpected file dialog: " << dialog.prompt);
        const auto answer = fileAnswers_.front();
        fileAnswers_.pop_front();
        return answer;
    }

    // The next question, its answer, and what happens while it is up.
    void Expect(
        DialogButton answer, std::function<void()> meanwhile = [] {}) {
        answers_.emplace_back(answer, std::move(meanwhile));
    }
    void ExpectTell() { ++expectedTells_; }
    void ExpectFile(std::optional<FolderItem> answer) { fileAnswers_.push_back(std::move(answer)); }

    std::vector<MessageDialog> asked;
    std::vector<std::string> told;
    std::vector<FileDialog> fileDialogs;

private:
    std::deque<std::pair<DialogButton, std::function<void()>>> answers_;
    std::deque<std::optional<FolderItem>> fileAnswers_;
    int expectedTells_ = 0;
};

class TestDesktop final : public Desktop {
public:
    void SetClipboardText(const std::string& text) override { clipboard = text; }
    bool OptionKeyIsDown() const override { return option; }
    bool ShiftKeyIsDown() const override { return shift; }
    void OpenAddress(const std::string& address, std::function<void()> refused) override {
        opened.push_back(address);
        if (!takesAddresses) {
            refused();
        }
    }
    bool OpenFile(const FolderItem& item) override {
        opened.push_back(item.NativePath());
        return true;
    }
    void AskForAttention() override { ++askedForAttention; }

    int askedForAttention = 0;
    std::string clipboard;
    std::vector<std::string> opened;
    bool option = false;
    bool shift = false;
    bool takesAddresses = true;
};

// Keeps requests until the test answers them.
class TestHttp final : public HttpService {
public:
    void Get(const std::string& url, std::function<void(const HttpReply&)> reply) override {
        requests.push_back({url, std::move(reply)});
    }

    struct Request {
        std::string url;
        std::function<void(const HttpReply&)> reply;
    };
    std::vector<Request> requests;
};

// Remembers what a screen reader was given to speak, the last at the back.
class TestAnnouncer final : public Announcer {
public:
    void Say(const std::string& text) override { said.push_back(text); }

    std::vector<std::string> said;
};

class PlentyOfMemory final : public MemoryLimits {
public:
    std::uint64_t AvailableBytes() const override {
        return isBroken ? throw std::runtime_error("planted") : available;
    }
    bool isBroken = false;
    std::uint64_t available = std::uint64_t{1} << 30;
};

// A program in a world of its own: no screen, no sound, a clock that stands still, files in memory. By
// default the start is over and asked nothing: a preferences file says that all prompts are settled.
class TestWorld {
public:
    enum class Launch { Settled, First, NotYet };
    explicit TestWorld(Launch launch = Launch::Settled);
    // With these lines in the preferences file of a user who has given; not started yet.
    explicit TestWorld(const std::string& settings);

    WinMain& Main() { return program->winMain(); }
    // What the user does: into the field, replacing all of it, key by key; time passes as it does for a
    // typist.
    void Type(TextField& field, const std::string& text);
    // Whether the preferences file holds the text.
    bool HasSaved(const std::string& text) const;
    // Lets the recalculation happen and its thread, if it needs one, end.
    void Settle();

    static constexpr const char* preferencesFile = "/home/user/.config/Tessarolyne Prefs.txt";

    VirtualLoop loop;
    TestStage stage;
    TestSounds sounds{loop};
    ScriptedDialogs dialogs;
    TestDesktop desktop;
    TestHttp http;
    MemoryFileSystem files;
    PlentyOfMemory memory;
    TestAnnouncer announcer;
    Services services{loop, loop, stage, dialogs, desktop, sounds, http, files, memory, announcer};
    std::unique_ptr<ProgramRun> program;
};

} // namespace tessarolyne

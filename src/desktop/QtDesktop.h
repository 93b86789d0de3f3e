#pragma once

#include "platform/Desktop.h"

namespace tessarolyne {

class EventLoop;

// The clipboard, keys and openers of the user's desktop.
class QtDesktop final : public Desktop {
public:
    // A refusal comes through `loop`, which may hold it back.
    explicit QtDesktop(EventLoop& loop) : loop_(loop) {}

    void SetClipboardText(const std::string& text) override;
    bool OptionKeyIsDown() const override;
    bool ShiftKeyIsDown() const override;
    // Web and mail addresses only.
    void OpenAddress(const std::string& address, std::function<void()> refused) override;
    bool OpenFile(const FolderItem& item) override;
    void AskForAttention() override;

private:
    EventLoop& loop_;
};

} // namespace tessarolyne

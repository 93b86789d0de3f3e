#pragma once

#include "platform/Desktop.h"

namespace tessarolyne {

// The clipboard, keys and openers of the user's desktop.
class QtDesktop final : public Desktop {
public:
    void SetClipboardText(const std::string& text) override;
    bool OptionKeyIsDown() const override;
    bool ShiftKeyIsDown() const override;
    // Web and mail addresses only.
    bool OpenAddress(const std::string& address) override;
    bool OpenFile(const FolderItem& item) override;
};

} // namespace tessarolyne

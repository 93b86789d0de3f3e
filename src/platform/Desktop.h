#pragma once

#include "platform/FolderItem.h"

#include <string>

namespace tessarolyne {

// The clipboard, the modifier keys, and what opens addresses and files: the user's desktop.
class Desktop {
public:
    virtual ~Desktop() = default;

    virtual void SetClipboardText(const std::string& text) = 0;

    // Whether the key is down at this moment. Option is Alt; where Alt-click belongs to the window manager,
    // Ctrl serves as well.
    virtual bool OptionKeyIsDown() const = 0;
    virtual bool ShiftKeyIsDown() const = 0;

    // Hands an address or a file to the desktop without waiting. False if nothing takes it.
    virtual bool OpenAddress(const std::string& address) = 0;
    virtual bool OpenFile(const FolderItem& item) = 0;
};

} // namespace tessarolyne

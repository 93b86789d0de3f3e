#pragma once

#include "platform/FolderItem.h"

#include <functional>
#include <string>

namespace tessarolyne {

// Says to a screen reader what it would not come upon by itself: a result that has come, a copy, a refusal.
// Nothing is seen of it, and nothing happens where no screen reader is. The program announces by way of
// Fncts::Announce, which knows whether the user wants it.
class Announcer {
public:
    virtual ~Announcer() = default;
    // Has `text` spoken once, soon, and returns at once. A later text takes the place of an earlier one.
    virtual void Say(const std::string& text) = 0;
};

// The clipboard, the modifier keys, and what opens addresses and files: the user's desktop.
class Desktop {
public:
    virtual ~Desktop() = default;

    virtual void SetClipboardText(const std::string& text) = 0;

    // Whether the key is down at this moment. Option is Alt; where Alt-click belongs to the window manager,
    // Ctrl serves as well.
    virtual bool OptionKeyIsDown() const = 0;
    virtual bool ShiftKeyIsDown() const = 0;

    // Hands an address to the desktop without waiting. Where nothing takes it, `refused` is called on the
    // main thread, at once or as soon as that is known.
    virtual void OpenAddress(const std::string& address, std::function<void()> refused) = 0;
    // The same for a file. False if nothing takes it.
    virtual bool OpenFile(const FolderItem& item) = 0;

    // Has the desktop point at the program, in the taskbar or the dock, until the user comes back to it.
    // Nothing if the user is there.
    virtual void AskForAttention() = 0;
};

} // namespace tessarolyne

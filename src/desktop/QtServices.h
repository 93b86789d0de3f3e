#pragma once

#include "desktop/QtDialogs.h"
#include "desktop/QtEventLoop.h"
#include "desktop/QtHttp.h"
#include "desktop/QtStage.h"
#include "platform/Services.h"

#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>
#include <optional>

namespace tessarolyne {

// Announces as a notification that shows in the window that the user is in: a label in a box of that role,
// one pixel in size and never drawn. Screen readers speak what such a box holds when it shows, wherever the
// focus is.
class QtAnnouncer final : public Announcer {
public:
    QtAnnouncer() {
        rest_.setSingleShot(true);
        rest_.callOnTimeout([this] { Show(); });
    }

    void Say(const std::string& text) override;

private:
    void Show();

    QString text_;
    QTimer rest_;            // until it is shown
    QPointer<QWidget> last_; // it goes with its window
};

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

// The beep of the desktop, and sound files played by whichever player of the sound system is installed. A
// machine without one stays silent; nothing waits for it.
class QtSounds final : public Sounds {
public:
    void Beep() override;
    std::unique_ptr<Playing> Play(const std::string& file) override;

private:
    const QString& Player();

    std::optional<QString> player_; // looked for at the first sound
};

// All that the desktop answers. Made after the QtApplication and before the program, and outlives it.
struct QtServices {
    explicit QtServices(FileSystem& files) : dialogs(loop, stage, files), desktop(loop), http(loop) {}

    // Them together with what the machine answers.
    Services With(Clock& clock, FileSystem& files, MemoryLimits& memory) {
        return {clock, loop, stage, dialogs, desktop, sounds, http, files, memory, announcer};
    }

    QtEventLoop loop;
    QtStage stage;
    QtDialogs dialogs;
    QtDesktop desktop;
    QtSounds sounds;
    QtHttp http;
    QtAnnouncer announcer;
};

} // namespace tessarolyne

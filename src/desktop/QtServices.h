#pragma once

#include "desktop/QtEventLoop.h"
#include "desktop/QtHttp.h"
#include "desktop/QtMenu.h"
#include "desktop/WindowView.h"
#include "platform/Services.h"

#include <QFileDialog>
#include <QPointer>
#include <QTimer>
#include <memory>
#include <optional>
#include <vector>

namespace tessarolyne {

// The user's screens. The first window that is shown bears the menu bar, where the platform has none of its
// own; the others obey its shortcuts.
class QtStage final : public Stage {
public:
    ~QtStage() override;

    void Present(Window& window) override;
    ScreenSize Screen() const override;
    bool IsOnOtherScreen(const WindowPlace& place) const override;

    // The real window of a model; null if it isn't shown or has closed.
    QWidget* Find(const Window* window) const;

private:
    std::vector<QPointer<WindowView>> views_;
    std::unique_ptr<QtMenu> menu_;
    Connection applicationChanged_;
};

// The desktop's dialogs. They run in the program's own event loop, so that a quit ends them like any other
// modal window.
class QtDialogs final : public Dialogs {
public:
    QtDialogs(EventLoop& loop, const QtStage& stage, FileSystem& files)
        : loop_(loop), stage_(stage), files_(files) {}

    DialogButton Ask(const MessageDialog& dialog) override;
    void Tell(const std::string& text) override;
    std::optional<FolderItem> ChooseFile(const FileDialog& dialog) override;
    std::optional<FolderItem> ChooseTarget(const FileDialog& dialog) override;

private:
    int Run(QDialog* dialog);
    std::optional<FolderItem> Choose(const FileDialog& dialog, QFileDialog::AcceptMode mode);

    EventLoop& loop_;
    const QtStage& stage_;
    FileSystem& files_;
};

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

#pragma once

#include "desktop/WindowView.h"
#include "platform/EventLoop.h"
#include "platform/Http.h"
#include "platform/Services.h"

#include <QByteArray>
#include <QDialog>
#include <QHostAddress>
#include <QPointer>
#include <QTimer>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

class QEventLoop;

namespace tessarolyne {

// The main thread's loop on Qt's. Posted tasks and alarms run one at a time from Qt's own events, so nothing
// wakes up while nothing happens. Needs a QCoreApplication.
class QtEventLoop final : public QObject, public EventLoop {
public:
    // Runs until Quit and returns its exit code; at once if the program quits already.
    int Run();

    std::int64_t Milliseconds() const override;
    void Post(std::function<void()> task) override;
    AlarmId SetAlarm(int milliseconds, std::function<void()> task) override;
    void CancelAlarm(AlarmId alarm) override { alarms_.erase(alarm); }
    void RunUntil(const std::function<bool()>& done) override;
    void WaitUntil(const std::function<bool()>& done) override;
    bool IsWaiting() const override { return waits_ > 0; }
    void DropInput() override;
    void Quit(int exitCode) override;
    bool IsQuitting() const override { return quitting_; }

private:
    void Take(std::function<void()> task);
    void RunNext();
    void Ring(AlarmId alarm);
    void EndWait();

    std::deque<std::function<void()>> due_; // more than one only after a wait, which holds them back
    std::map<AlarmId, std::function<void()>> alarms_;
    AlarmId lastAlarm_ = 0;
    std::vector<QEventLoop*> loops_;
    int waits_ = 0;
    int exitCode_ = 0;
    bool quitting_ = false;
};

// The addresses of a host, best first; none if there is no such host. Called on a thread of its own.
using HostResolver = std::function<std::vector<QHostAddress>(const QByteArray& host)>;
std::vector<QHostAddress> SystemAddresses(const QByteArray& host);

// Plain HTTP for small pages over Qt's sockets: one request, which says nothing about the user, and its
// answer, of limited size and in limited time; no redirects, proxies, cookies or encodings. Not over Qt's own
// HTTP, which asks again where a server hangs up, names the user's language, takes headers of any length, and
// at the end of the process waits for a look-up that is under way.
class QtHttp final : public HttpService {
public:
    // Error codes of a reply without a page, in the framework's numbers.
    static constexpr int lostConnection = 102;
    static constexpr int notFound = 103;

    // `loop` is also the deadline's clock.
    explicit QtHttp(EventLoop& loop, HostResolver resolver = SystemAddresses)
        : loop_(loop), resolver_(std::move(resolver)), exchanges_(std::make_unique<QObject>()) {}

    void Get(const std::string& url, std::function<void(const HttpReply&)> reply) override;

private:
    EventLoop& loop_;
    const HostResolver resolver_;
    const std::unique_ptr<QObject> exchanges_; // the parent of those under way
};

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
    std::optional<FolderItem> Choose(const FileDialog& dialog) override;

private:
    int Run(QDialog* dialog);

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
    std::function<bool()> Play(const std::string& file) override;
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

#include "desktop/QtServices.h"

#include "desktop/ControlView.h"
#include "desktop/QtText.h"
#include "desktop/Resources.h"
#include "platform/Application.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>
#include <algorithm>
#include <csignal>
#include <sys/types.h>
#include <unistd.h>

namespace tessarolyne {

namespace {

void Silence(QProcess& process) {
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
}

// An opener that ends later had the browser in its own foreground: the address was taken.
constexpr int longestOpening = 20'000; // milliseconds

// Gives the address to the desktop's own opener, which says by its status whether a program took it; Qt
// starts the same one, but doesn't listen. False if none could be started.
bool AskOpener(const QUrl& url, const std::function<void()>& refused) {
    const QString opener = QStandardPaths::findExecutable(QLatin1String("xdg-open"));
    if (opener.isEmpty()) {
        return false;
    }
    // Without a parent: a process that is destroyed while it runs is killed, and the browser with it.
    auto* const process = new QProcess;
    Silence(*process);
    process->setChildProcessModifier([] { ::setsid(); }); // a Ctrl+C in our terminal isn't meant for it
    QElapsedTimer since;
    since.start();
    QObject::connect(process, &QProcess::finished, process, [=](int status, QProcess::ExitStatus how) {
        process->deleteLater();
        if ((status != 0 || how != QProcess::NormalExit) && since.elapsed() < longestOpening) {
            refused();
        }
    });
    process->start(opener, {QString::fromLatin1(url.toEncoded())});
    const bool started = process->waitForStarted();
    if (!started) {
        delete process;
    }
    return started;
}

// Of PipeWire, PulseAudio, ALSA and macOS.
QString FindPlayer() {
    for (const char* const player : {"pw-play", "paplay", "aplay", "afplay"}) {
        if (QString found = QStandardPaths::findExecutable(QLatin1String(player)); !found.isEmpty()) {
            return found;
        }
    }
    return {};
}

// In milliseconds: more than any of the program's sounds, so that a player that hangs makes nobody wait for
// ever.
constexpr qint64 longestSound = 10'000;

// The application's pointer goes before those of windows and controls.
void ReadCursor(const Application& application) {
    QGuiApplication::restoreOverrideCursor();
    if (application.MouseCursor() != Cursor::None) {
        QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    }
}

} // namespace

// What is still shown when the program ends goes with the stage; the models are gone by then or silent.
QtStage::~QtStage() {
    for (const auto& view : views_) {
        delete view.data();
    }
}

void QtStage::Present(Window& window) {
    Application& application = window.GetApplication();
    if (views_.empty()) {
        applicationChanged_ = application.Changed.Connect([&application] { ReadCursor(application); });
        ReadCursor(application);
    }
    std::erase_if(views_, [](const auto& view) { return view.isNull(); });
    if (menu_ == nullptr && application.GetMenuBar() != nullptr) {
        menu_ = std::make_unique<QtMenu>(application, *application.GetMenuBar());
    }
    views_.push_back(new WindowView(window, menu_.get()));
}

ScreenSize QtStage::Screen() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? ScreenSize() : ScreenSize{screen->size().width(), screen->size().height()};
}

bool QtStage::IsOnOtherScreen(const WindowPlace& place) const {
    const QRect wanted(place.left, place.top, place.width, place.height);
    return std::ranges::any_of(QGuiApplication::screens(), [&](const QScreen* screen) {
        return screen != QGuiApplication::primaryScreen() && screen->geometry().contains(wanted);
    });
}

QWidget* QtStage::Find(const Window* window) const {
    const auto found = std::find_if(views_.begin(), views_.end(),
        [&](const auto& view) { return !view.isNull() && view->isVisible() && &view->Model() == window; });
    return found == views_.end() ? nullptr : found->data();
}

// Not at once: where a run ends, all controls come back, and a reader that many events reach together passes
// over some of them, Orca over all but those of the focus.
void QtAnnouncer::Say(const std::string& text) {
    constexpr int rest = 400; // milliseconds
    text_ = WithLineFeeds(text);
    if (QAccessible::isActive()) {
        rest_.start(rest);
    }
}

// A reader asks for the text a moment after it was told that the box shows, so that it has to stay.
void QtAnnouncer::Show() {
    QWidget* const window = WindowInUse();
    if (window == nullptr) {
        return;
    }
    delete last_;
    auto* const box = new QWidget(window);
    box->setProperty(roleProperty, QVariant::fromValue(QAccessible::Notification));
    box->resize(1, 1);
    (new QLabel(box))->setAccessibleName(text_);
    last_ = box;
    box->show();
}

void QtDesktop::SetClipboardText(const std::string& text) {
    QGuiApplication::clipboard()->setText(ToQt(text));
}

bool QtDesktop::OptionKeyIsDown() const {
    Qt::KeyboardModifiers option = Qt::AltModifier;
#ifndef Q_OS_MACOS
    option |= Qt::ControlModifier;
#endif
    return QGuiApplication::queryKeyboardModifiers().testAnyFlags(option);
}

bool QtDesktop::ShiftKeyIsDown() const {
    return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ShiftModifier);
}

void QtDesktop::OpenAddress(const std::string& address, std::function<void()> refused) {
    const QUrl url(ToQt(address), QUrl::StrictMode);
    const QString scheme = url.scheme();
    const bool known = scheme == u"http" || scheme == u"https" || scheme == u"mailto";
    const auto postRefusal = [&loop = loop_, refused = std::move(refused)] { loop.Post(refused); };
    const bool taken =
        known && url.isValid() && (AskOpener(url, postRefusal) || QDesktopServices::openUrl(url));
    if (!taken) {
        postRefusal();
    }
}

bool QtDesktop::OpenFile(const FolderItem& item) {
    const QString path = QFile::decodeName(QByteArray::fromStdString(item.NativePath()));
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void QtDesktop::AskForAttention() {
    if (QApplication::activeWindow() == nullptr) {
        QApplication::alert(nullptr); // all windows: a taskbar shows them as one or each
    }
}

void QtSounds::Beep() {
    QApplication::beep();
}

std::function<bool()> QtSounds::Play(const std::string& file) {
    static const QString player = FindPlayer();
    const QString path = ResourcePath("sounds/" + file);
    QProcess process;
    process.setProgram(player);
    process.setArguments({path});
    Silence(process);
    qint64 id = 0;
    const bool hasStarted = !player.isEmpty() && !path.isEmpty() && process.startDetached(&id);
    QElapsedTimer since;
    since.start();
    return [=] {
        return hasStarted && since.elapsed() < longestSound && ::kill(static_cast<pid_t>(id), 0) == 0;
    };
}

} // namespace tessarolyne

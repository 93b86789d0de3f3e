#include "desktop/QtDesktop.h"

#include "desktop/QtText.h"
#include "platform/EventLoop.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <unistd.h>

#include <utility>

namespace tessarolyne {

namespace {

// An opener that ends later had the browser in its own foreground: the address was taken.
constexpr int longestOpening = 20'000; // milliseconds

// Gives the address to the desktop's own opener, which says by its status whether a program took it; Qt
// starts the same one, but doesn't listen. False if there is none.
bool AskOpener(const QUrl& url, const std::function<void()>& refused) {
    const QString opener = QStandardPaths::findExecutable(QLatin1String("xdg-open"));
    if (opener.isEmpty()) {
        return false;
    }
    // Without a parent: a process that is destroyed while it runs is killed, and the browser with it.
    auto* const process = new QProcess;
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    process->setChildProcessModifier([] { ::setsid(); }); // a Ctrl+C in our terminal isn't meant for it
    QElapsedTimer since;
    since.start();
    QObject::connect(process, &QProcess::finished, process, [=](int status, QProcess::ExitStatus how) {
        process->deleteLater();
        if ((status != 0 || how != QProcess::NormalExit) && since.elapsed() < longestOpening) {
            refused();
        }
    });
    QObject::connect(process, &QProcess::errorOccurred, process, [=](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            process->deleteLater();
            refused();
        }
    });
    process->start(opener, {QString::fromLatin1(url.toEncoded())});
    return true;
}

} // namespace

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

} // namespace tessarolyne

#include "desktop/QtDesktop.h"

#include "desktop/QtText.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QFile>
#include <QGuiApplication>
#include <QUrl>

namespace tessarolyne {

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

bool QtDesktop::OpenAddress(const std::string& address) {
    const QUrl url(ToQt(address), QUrl::StrictMode);
    const QString scheme = url.scheme();
    const bool known = scheme == u"http" || scheme == u"https" || scheme == u"mailto";
    return known && url.isValid() && QDesktopServices::openUrl(url);
}

bool QtDesktop::OpenFile(const FolderItem& item) {
    const QString path = QFile::decodeName(QByteArray::fromStdString(item.NativePath()));
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace tessarolyne

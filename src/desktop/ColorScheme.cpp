#include "desktop/ColorScheme.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>
#include <QPalette>
#include <QStyle>

namespace tessarolyne {

namespace {

// The settings portal,
// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Settings.html
const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString colorScheme = QStringLiteral("color-scheme");
constexpr unsigned prefersDark = 1;

// Asked without one, the library would start a bus by itself.
bool HasSessionBus() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

bool HasColorsOfTheDesktop() {
    return QApplication::palette() != QApplication::style()->standardPalette();
}

QPalette DarkPalette() {
    const QColor window(56, 56, 56);
    const QColor base(28, 28, 28);
    const QColor text(240, 240, 240);
    const QColor faint(140, 140, 140);
    const QColor accent(48, 140, 198);
    QPalette palette(text, window, QColor(90, 90, 90), QColor(28, 28, 28), QColor(42, 42, 42), text, base);
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 38));
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::LinkVisited, QColor(155, 109, 202));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(90, 90, 90));
    return palette;
}

} // namespace

ColorScheme::ColorScheme() {
    if (!HasSessionBus() || HasColorsOfTheDesktop()) {
        return;
    }
    changed_.setSingleShot(true);
    QObject::connect(&changed_, &QTimer::timeout, &changed_, [this] { Ask(); });
    QDBusConnection::sessionBus().connect(portal, portalPath, settings, QStringLiteral("SettingChanged"),
        {appearance, colorScheme}, QString(), &changed_, SLOT(start()));
    Ask();
}

ColorScheme::~ColorScheme() = default;

void ColorScheme::Ask() {
    QDBusMessage question =
        QDBusMessage::createMethodCall(portal, portalPath, settings, QStringLiteral("Read"));
    question << appearance << colorScheme;
    answer_ = std::make_unique<QDBusPendingCallWatcher>(QDBusConnection::sessionBus().asyncCall(question));
    QObject::connect(answer_.get(), &QDBusPendingCallWatcher::finished, &changed_, [this] {
        const QDBusPendingReply<QDBusVariant> reply = *answer_;
        if (reply.isValid()) { // the portal wraps the value twice
            Take(reply.value().variant().value<QDBusVariant>().variant().toUInt() == prefersDark);
        }
    });
}

void ColorScheme::Take(bool isDark) {
    if (isDark != isDark_) {
        isDark_ = isDark;
        QApplication::setPalette(isDark ? DarkPalette() : QApplication::style()->standardPalette());
    }
}

} // namespace tessarolyne

#include "desktop/Appearance.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QDBusConnection>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>
#include <QPainter>
#include <QStyleOptionButton>

namespace tessarolyne {

namespace {

// How far from the window's colour to its text's; Fusion takes back nearly a third. Three to one against the
// window and the field, the least that WCAG 2.1 asks for, where the text is white on dark grey.
constexpr float towardsText = 0.85F;

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

// Fusion derives the outline from the colour of the window, which these elements use for nothing else.
template <typename Option>
Option WithOutline(const Option& option) {
    Option outlined(option);
    const QColor window = option.palette.color(QPalette::Window);
    const QColor text = option.palette.color(QPalette::WindowText);
    outlined.palette.setColor(QPalette::Window, Mixed(window, text, towardsText));
    return outlined;
}

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

QColor Mixed(const QColor& from, const QColor& to, float share) {
    const auto mix = [&](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(
        mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()), mix(from.blueF(), to.blueF()));
}

OutlinedStyle::OutlinedStyle() : QProxyStyle(QStringLiteral("fusion")) {}

void OutlinedStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    const bool dark = IsDark(option->palette);
    painter->save();
    // Fusion draws the frame of an area around the middle of its lines, half of them outside of the widget.
    // Where a point is not a whole number of pixels, the half that is left may be less than one, and nothing
    // is seen.
    if (element == PE_Frame && painter->device()->devicePixelRatioF() > 1 &&
        qobject_cast<const QAbstractScrollArea*>(widget) != nullptr) {
        painter->translate(0.5, 0.5);
    }
    if (dark && button != nullptr &&
        (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)) {
        const auto outlined = WithOutline(*button);
        QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    } else if (dark && frame != nullptr && (element == PE_FrameLineEdit || element == PE_Frame)) {
        const auto outlined = WithOutline(*frame);
        QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    painter->restore();
}

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

#pragma once

#include <QColor>
#include <QDBusPendingCallWatcher>
#include <QProxyStyle>
#include <QTimer>
#include <memory>

namespace tessarolyne {

// The colour that lies as far as `share`, 0 to 1, from one to the other.
QColor Mixed(const QColor& from, const QColor& to, float share);

// Qt's Fusion style with outlines that can be seen in dark colours too. Fusion draws the edges of boxes, dots
// and fields somewhat darker than the window, which on a dark one is next to nothing: an empty check box
// can't be found. And the frames of areas are whole at every size, 1.25 too. For desktops whose style is
// Fusion; other styles have outlines of their own.
class OutlinedStyle final : public QProxyStyle {
public:
    OutlinedStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
};

// Dark colours where the desktop prefers them but Qt 6.4 doesn't see it: GNOME and others tell it by the
// desktop portal's settings alone. Colours that the desktop gives Qt itself, as KDE does, stay as they are.
// The answer comes with the event loop, at the start and whenever the user changes the setting; without a
// session bus or a portal nothing is asked.
class ColorScheme final {
public:
    ColorScheme();

private:
    void Ask();
    void Take(bool isDark);

    bool isDark_ = false;
    QTimer changed_; // started by the portal's signal: a timer's start is a slot that takes no values
    std::unique_ptr<QDBusPendingCallWatcher> answer_;
};

} // namespace tessarolyne

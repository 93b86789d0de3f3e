#pragma once

#include <QProxyStyle>

namespace tessarolyne {

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

} // namespace tessarolyne

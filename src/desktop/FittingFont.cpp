#include "desktop/FittingFont.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <QWidget>

namespace tessarolyne {

namespace {

constexpr int smallestTenths = 7;

} // namespace

QFont FittingFont(const QWidget& widget, const QString& text, int width, int pixels) {
    QFont font = QApplication::font(&widget);
    if (pixels > 0) {
        font.setPixelSize(pixels);
    }
    if (text.isEmpty()) {
        return font;
    }
    const int full = QFontInfo(font).pixelSize();
    const int smallest = full * smallestTenths / 10;
    for (int size = full; QFontMetrics(font).horizontalAdvance(text) > width && size > smallest;) {
        font.setPixelSize(--size);
    }
    return font;
}

} // namespace tessarolyne

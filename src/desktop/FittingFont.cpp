#include "desktop/FittingFont.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <QWidget>

#include <algorithm>

namespace tessarolyne {

namespace {

constexpr int smallestTenths = 7;
constexpr int designed = 11; // pixels for which all controls have room, however large the desktop's font is

} // namespace

QFont FittingFont(const QWidget& widget, const QString& text, int width, int pixels) {
    QFont font = QApplication::font(&widget);
    if (pixels > 0) {
        font.setPixelSize(pixels);
    }
    const auto fits = [&] {
        const QFontMetrics metrics(font);
        return metrics.horizontalAdvance(text) <= width && metrics.height() <= widget.height();
    };
    const int full = QFontInfo(font).pixelSize();
    const int smallest = std::min(full * smallestTenths / 10, designed);
    for (int size = full; size > smallest && !fits();) {
        font.setPixelSize(--size);
    }
    return font;
}

} // namespace tessarolyne

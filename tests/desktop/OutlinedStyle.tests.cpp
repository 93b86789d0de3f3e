#include "desktop/OutlinedStyle.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>

#include <doctest/doctest.h>

#include <algorithm>
#include <cmath>

using namespace tessarolyne;

namespace {

// As WCAG 2.1 defines them.
double Luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

// The highest contrast with the window along the middle of what is drawn, from outside to the centre.
template <typename Option>
double OutlineContrast(QStyle::PrimitiveElement element, const QPalette& palette) {
    constexpr int size = 14;
    Option option;
    option.palette = palette;
    option.rect = QRect(0, 0, size, size);
    option.state = QStyle::State_Enabled;
    const QColor window = palette.color(QPalette::Window);
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(window);
    QPainter painter(&image);
    OutlinedStyle().drawPrimitive(element, &option, &painter, nullptr);
    painter.end();
    double lightest = 0;
    for (int x = 0; x < size / 2; ++x) {
        lightest = std::max(lightest, Luminance(image.pixelColor(x, size / 2)));
    }
    return (lightest + 0.05) / (Luminance(window) + 0.05);
}

} // namespace

TEST_CASE("An empty box, dot or field can be told from a dark window") {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 1;
    char name[] = "tests";
    char* arguments[] = {name, nullptr};
    const QApplication application(count, arguments);
    QPalette dark; // the lightest of those that desktops have
    dark.setColor(QPalette::Window, QColor(56, 56, 56));
    dark.setColor(QPalette::WindowText, QColor(240, 240, 240));
    dark.setColor(QPalette::Base, QColor(28, 28, 28));
    CHECK(OutlineContrast<QStyleOptionButton>(QStyle::PE_IndicatorCheckBox, dark) >= 3);
    CHECK(OutlineContrast<QStyleOptionButton>(QStyle::PE_IndicatorRadioButton, dark) >= 3);
    CHECK(OutlineContrast<QStyleOptionFrame>(QStyle::PE_FrameLineEdit, dark) >= 3);
    CHECK(OutlineContrast<QStyleOptionFrame>(QStyle::PE_Frame, dark) >= 3);
}

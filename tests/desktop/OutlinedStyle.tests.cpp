#include "desktop/OutlinedStyle.h"
#include "desktop/WindowView.h"
#include "support/TestWorld.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
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

// An application that needs no display.
struct Offscreen {
    int count = 1;
    char name[6] = "tests";
    char* arguments[2] = {name, nullptr};
    const bool isSet = qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application{count, arguments};
};

// How many of an area's four edges are seen within its rectangle at that size of the screen.
int EdgesSeen(double scale, int top) {
    constexpr int width = 40;
    constexpr int height = 19;
    const QPlainTextEdit area;
    QStyleOptionFrame option;
    option.initFrom(&area);
    option.rect = QRect(0, 0, width, height);
    QImage image(240, 240, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(5, top);
    // Its viewport covers all but one point.
    painter.setClipRegion(QRegion(option.rect) - QRegion(option.rect.adjusted(1, 1, -1, -1)));
    OutlinedStyle().drawPrimitive(QStyle::PE_Frame, &option, &painter, &area);
    painter.end();
    const auto seen = [&](double x, double y) {
        return image.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale)) != Qt::white;
    };
    return seen(25, top + 0.5) + seen(25, top + height - 0.5) + seen(5.5, top + 9) +
           seen(5 + width - 0.5, top + 9);
}

} // namespace

TEST_CASE("The frame of an area is whole at every size and wherever it stands") {
    const Offscreen offscreen;
    for (double scale = 1; scale <= 3; scale += 0.25) {
        for (int top = 10; top < 14; ++top) {
            CAPTURE(scale);
            CAPTURE(top);
            CHECK(EdgesSeen(scale, top) == 4);
        }
    }
}

TEST_CASE("A control is greyed once it has been disabled for 150 ms, and refuses what comes from the first") {
    const Offscreen offscreen;
    tests::TestWorld world;
    WinMain& window = world.Main();
    const WindowView view(window, nullptr, false);
    auto* const box = view.findChild<QWidget*>("CheckBoxMajusc");
    auto* const menu = view.findChild<QComboBox*>("PopupMenuLg");
    const auto click = [](QWidget* widget) {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const Qt::MouseButtons down = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            QMouseEvent event(type, QPointF(8, 8), QPointF(8, 8), Qt::LeftButton, down, Qt::NoModifier);
            QCoreApplication::sendEvent(widget, &event);
        }
    };
    click(box);
    CHECK(window.CheckBoxMajusc.Value);
    for (const int disabledFor : {149, 150}) {
        window.PopupMenuLg.Enabled = false;
        click(menu);
        CHECK_FALSE(menu->view()->isVisible());
        window.CheckBoxMajusc.Enabled = false;
        click(box);
        window.CheckBoxMajusc.Enabled = true;
        window.CheckBoxMajusc.Enabled = false;
        world.loop.Advance(disabledFor);
        CHECK(box->isEnabled() == (disabledFor < 150));
        window.CheckBoxMajusc.Enabled = true;
        window.PopupMenuLg.Enabled = true;
        CHECK(box->isEnabled());
        CHECK(window.CheckBoxMajusc.Value);
    }
}

TEST_CASE("An empty box, dot or field can be told from a dark window") {
    const Offscreen offscreen;
    QPalette dark; // the lightest of those that desktops have
    dark.setColor(QPalette::Window, QColor(56, 56, 56));
    dark.setColor(QPalette::WindowText, QColor(240, 240, 240));
    dark.setColor(QPalette::Base, QColor(28, 28, 28));
    CHECK(OutlineContrast<QStyleOptionButton>(QStyle::PE_IndicatorCheckBox, dark) >= 3);
    CHECK(OutlineContrast<QStyleOptionButton>(QStyle::PE_IndicatorRadioButton, dark) >= 3);
    CHECK(OutlineContrast<QStyleOptionFrame>(QStyle::PE_FrameLineEdit, dark) >= 3);
    CHECK(OutlineContrast<QStyleOptionFrame>(QStyle::PE_Frame, dark) >= 3);
}

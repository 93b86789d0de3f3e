#include "desktop/OutlinedStyle.h"

#include <QAbstractScrollArea>
#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>

namespace tessarolyne {

namespace {

// How far from the window's colour to its text's; Fusion takes back nearly a third. Three to one against the
// window and the field, the least that WCAG 2.1 asks for, where the text is white on dark grey.
constexpr float towardsText = 0.85F;

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

float Between(float from, float to) {
    return from + (to - from) * towardsText;
}

// Fusion derives the outline from the colour of the window, which these elements use for nothing else.
template <typename Option>
Option WithOutline(const Option& option) {
    Option outlined(option);
    const QColor window = option.palette.color(QPalette::Window);
    const QColor text = option.palette.color(QPalette::WindowText);
    outlined.palette.setColor(QPalette::Window,
        QColor::fromRgbF(Between(window.redF(), text.redF()), Between(window.greenF(), text.greenF()),
            Between(window.blueF(), text.blueF())));
    return outlined;
}

// Fusion draws the frame of an area around the middle of its lines, half of them outside of the widget. Where
// a point is not a whole number of pixels, the half that is left may be less than one, and nothing is seen.
class WholeLines {
public:
    WholeLines(QPainter* painter, const QWidget* widget)
        : painter_(painter->device()->devicePixelRatioF() > 1 &&
                           qobject_cast<const QAbstractScrollArea*>(widget) != nullptr
                       ? painter
                       : nullptr) {
        Shift(0.5);
    }
    ~WholeLines() { Shift(-0.5); }
    WholeLines(const WholeLines&) = delete;
    WholeLines& operator=(const WholeLines&) = delete;

private:
    void Shift(qreal points) {
        if (painter_ != nullptr) {
            painter_->translate(points, points);
        }
    }
    QPainter* const painter_;
};

} // namespace

OutlinedStyle::OutlinedStyle() : QProxyStyle(QStringLiteral("fusion")) {}

void OutlinedStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const {
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    const bool dark = IsDark(option->palette);
    const WholeLines whole(painter, element == PE_Frame ? widget : nullptr);
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
}

} // namespace tessarolyne

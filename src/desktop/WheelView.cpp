#include "desktop/ControlView.h"
#include "platform/Controls.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QBasicTimer>
#include <QCursor>
#include <QPainter>
#include <QTimerEvent>
#include <QToolTip>

#include <algorithm>

namespace tessarolyne {

namespace {

class WheelWidget final : public QWidget {
public:
    WheelWidget(const ProgressWheel& model, QWidget* parent) : QWidget(parent), model_(model) {}

    const ProgressWheel& Model() const { return model_; }

protected:
    void showEvent(QShowEvent*) override {
        turn_ = -2;
        timer_.start(turnPeriod, this);
    }
    void hideEvent(QHideEvent*) override { timer_.stop(); }
    void timerEvent(QTimerEvent*) override {
        turn_ = (turn_ + 1) % spokes;
        update();
    }
    void paintEvent(QPaintEvent*) override {
        if (turn_ < 0) {
            return; // what is over before would only flicker
        }
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal radius = std::min(width(), height()) / 2.0;
        painter.translate(width() / 2.0, height() / 2.0);
        QColor color = palette().color(QPalette::WindowText);
        for (int i = 0; i < spokes; ++i) {
            color.setAlphaF(0.15F + 0.85F * static_cast<float>((i + spokes - turn_) % spokes) / spokes);
            painter.save();
            painter.rotate(-360.0 * i / spokes);
            painter.setPen(QPen(color, radius / 6, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(0, -radius * 0.5), QPointF(0, -radius * 0.85));
            painter.restore();
        }
    }

private:
    static constexpr int spokes = 12;
    static constexpr int turnPeriod = 80; // milliseconds a spoke
    const ProgressWheel& model_;
    QBasicTimer timer_;
    int turn_ = 0;
};

class WheelAccess final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit WheelAccess(WheelWidget& wheel)
        : QAccessibleWidget(&wheel, QAccessible::ProgressBar), model_(wheel.Model()) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return QVariant::fromValue<qint64>(model_.Value); }
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override { return QVariant::fromValue<qint64>(model_.Maximum); }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 0; }

private:
    const ProgressWheel& model_;
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
    auto* const wheel = dynamic_cast<WheelWidget*>(object);
    return wheel == nullptr ? nullptr : new WheelAccess(*wheel);
}

// Spokes that turn; the timer runs only while they can be seen. To a screen reader it is a progress bar,
// which it speaks of by itself, as often as its user likes.
class WheelView final : public View<ProgressWheel, WheelWidget> {
public:
    WheelView(ProgressWheel& model, QWidget* parent);

protected:
    void Read() override;
    std::string Description() const override { return model_.Spoken; }

private:
    std::int64_t toldValue_ = 0;
};

WheelView::WheelView(ProgressWheel& model, QWidget* parent) : View(model, new WheelWidget(model, parent)) {
    QAccessible::installFactory(MakeAccess); // once, however often it is called
}

void WheelView::Read() {
    if (toldValue_ != model_.Value) {
        toldValue_ = model_.Value;
        QAccessibleValueChangeEvent event(Widget(), QVariant::fromValue<qint64>(toldValue_));
        QAccessible::updateAccessibility(&event);
    }
    // A help tag that is up follows what goes on.
    if (Widget()->underMouse() && QToolTip::isVisible()) {
        QToolTip::showText(QCursor::pos(), Widget()->toolTip(), Widget());
    }
}

} // namespace

std::unique_ptr<ControlView> MakeWheelView(Control& control, QWidget* parent) {
    return MakeIf<ProgressWheel, WheelView>(control, parent);
}

} // namespace tessarolyne

#include "desktop/ControlView.h"
#include "desktop/QtText.h"
#include "desktop/Resources.h"
#include "platform/Controls.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QBasicTimer>
#include <QFontInfo>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QToolTip>
#include <algorithm>
#include <functional>
#include <utility>

namespace tessarolyne {

namespace {

// A link as a screen reader meets it: called one, and with a press that needs neither mouse nor keyboard.
class LinkAccess final : public QAccessibleWidget {
public:
    LinkAccess(QWidget& widget, std::function<void()> press)
        : QAccessibleWidget(&widget, QAccessible::Link), press_(std::move(press)) {}

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    // The reader doesn't wait for what the press brings up.
    void doAction(const QString& action) override {
        if (action == pressAction()) {
            QMetaObject::invokeMethod(widget(), press_, Qt::QueuedConnection);
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    const std::function<void()> press_;
};

// Gives a widget class the mouse of a model that has MouseDown, MouseUp, MouseEnter and MouseExit: a press
// that the model takes is followed by its release. With the focus, Space and Return are a press in place.
template <typename Base, typename Model>
class Pressable : public Base, public HasAccess {
public:
    Pressable(Model& model, QWidget* parent) : Base(parent), model_(model) {}

    QAccessibleInterface* MakeAccess() override {
        return model_.IsLink ? new LinkAccess(*this, [this] { Press(); }) : nullptr;
    }
    // A press in place, without the mouse. False if the model doesn't take any.
    bool Press() {
        const bool taken = model_.UserPressed(0, 0);
        if (taken) {
            model_.MouseUp(0, 0);
        }
        return taken;
    }

protected:
    void mousePressEvent(QMouseEvent* event) override {
        const QPoint at = event->position().toPoint();
        pressed_ = event->button() == Qt::LeftButton && model_.UserPressed(at.x(), at.y());
        event->setAccepted(pressed_);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        const QPoint at = event->position().toPoint();
        if (pressed_ && event->button() == Qt::LeftButton) {
            pressed_ = false;
            model_.MouseUp(at.x(), at.y());
        }
    }
    void enterEvent(QEnterEvent*) override { model_.MouseEnter(); }
    void leaveEvent(QEvent*) override { model_.MouseExit(); }

    void keyPressEvent(QKeyEvent* event) override {
        const bool presses =
            event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (presses && event->isAutoRepeat()) {
            return; // a key that is held down is one press
        }
        if (!presses || !Press()) {
            event->ignore();
        }
    }

    void paintEvent(QPaintEvent* event) override {
        Base::paintEvent(event);
        if (this->hasFocus()) {
            QStylePainter painter(this);
            QStyleOptionFocusRect focus;
            focus.initFrom(this);
            focus.state |= QStyle::State_KeyboardFocusChange;
            painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
        }
    }

    Model& model_;

private:
    bool pressed_ = false;
};

using LabelWidget = Pressable<QLabel, Label>;

class CanvasWidget final : public Pressable<QWidget, Canvas> {
public:
    using Pressable::Pressable;

protected:
    void paintEvent(QPaintEvent* event) override {
        {
            QPainter painter(this);
            DrawPicture(painter, model_.Image, rect());
        }
        Pressable::paintEvent(event);
    }
};

// Its letter leads to the control that the program says; Qt would take the first that was made.
class GroupBoxWidget final : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

    QWidget* target = nullptr;

protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::Shortcut || target == nullptr) {
            return QGroupBox::event(event);
        }
        target->setFocus(Qt::ShortcutFocusReason);
        return true;
    }
};

// Plain text, whatever it holds. A link is drawn in the palette's link colour; an overlay draws nothing and
// lies above all other controls.
class LabelView final : public View<Label, LabelWidget> {
public:
    LabelView(Label& model, QWidget* parent) : View(model, new LabelWidget(model, parent)) {
        widget_->setTextFormat(Qt::PlainText);
    }

    void LeadTo(QWidget* target) override {
        widget_->setBuddy(target);
        Update();
    }

private:
    void Read() override {
        widget_->setAlignment(QtAlignment(model_.TextAlignment));
        const QString plain = WithLineFeeds(model_.Text);
        const QString text = widget_->buddy() == nullptr ? plain : WithAltKey(model_.Text, model_.AltKey);
        QFont font = FittingFont(*widget_, plain, model_.Width);
        font.setUnderline(model_.IsLink);
        widget_->setFont(font);
        widget_->setForegroundRole(model_.IsLink ? QPalette::Link : QPalette::NoRole);
        widget_->setText(text);
        // An overlay keeps its presses to itself, also those that the model doesn't follow.
        widget_->setAttribute(Qt::WA_NoMousePropagation, model_.IsOverlay);
        if (model_.IsOverlay && model_.Visible) {
            widget_->raise();
        }
    }
    std::string OwnName() const override { return model_.Text; }
};

class GroupBoxView final : public View<GroupBox, GroupBoxWidget> {
public:
    GroupBoxView(GroupBox& model, QWidget* parent) : View(model, new GroupBoxWidget(parent)) {}

    void LeadTo(QWidget* target) override { widget_->target = target; }

private:
    void Read() override {
        widget_->setTitle(WithAltKey(model_.Caption, model_.AltKey));
        QFont font = QApplication::font(widget_);
        if (constexpr int highest = 17; QFontInfo(font).pixelSize() > highest) {
            font.setPixelSize(highest); // a higher title would push the frame into what stands below
            widget_->setFont(font);
        }
    }
};

// The share of what is to come; a screen reader reads it as that of a progress bar.
template <typename Model, typename Widget>
class ProgressView : public View<Model, Widget> {
public:
    ProgressView(Model& model, QWidget* parent) : View<Model, Widget>(model, new Widget(parent)) {
        this->widget_->setTextVisible(false);
    }

protected:
    void Read() override {
        const auto maximum = static_cast<double>(this->model_.Maximum());
        const int steps = maximum > 0 ? 1000 : 0; // the model counts further than Qt's int
        const double share = static_cast<double>(this->model_.Value()) / std::max(maximum, 1.0);
        this->widget_->setRange(0, steps);
        this->widget_->setValue(static_cast<int>(std::clamp(share, 0.0, 1.0) * steps));
    }
};

using ProgressBarView = ProgressView<ProgressBar, QProgressBar>;

class CanvasView final : public View<Canvas, CanvasWidget> {
public:
    CanvasView(Canvas& model, QWidget* parent) : View(model, new CanvasWidget(model, parent)) {}

private:
    void Read() override { widget_->update(); }
};

class WheelWidget final : public QProgressBar {
public:
    using QProgressBar::QProgressBar;

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
            return; // what is over sooner would only flicker
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
    QBasicTimer timer_;
    int turn_ = 0;
};

// Spokes that turn; the timer runs only while they can be seen. To a screen reader it is a progress bar,
// which it speaks of by itself, as often as its user likes.
class WheelView final : public ProgressView<ProgressWheel, WheelWidget> {
public:
    using ProgressView::ProgressView;

private:
    void Read() override {
        ProgressView::Read();
        // A help tag that is up follows what goes on.
        if (widget_->underMouse() && QToolTip::isVisible()) {
            QToolTip::showText(QCursor::pos(), widget_->toolTip(), widget_);
        }
    }
    std::string Description() const override { return model_.Spoken; }
};

} // namespace

std::unique_ptr<ControlView> MakeShowingView(Control& control, QWidget* parent) {
    return MakeByFirst<MakeIf<LabelView>, MakeIf<GroupBoxView>, MakeIf<ProgressBarView>, MakeIf<CanvasView>,
        MakeIf<WheelView>>(control, parent);
}

} // namespace tessarolyne

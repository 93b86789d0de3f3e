#include "desktop/ShowingViews.h"

#include "desktop/FittingFont.h"
#include "desktop/Pictures.h"
#include "desktop/Pressable.h"
#include "desktop/QtText.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QFontInfo>
#include <QGroupBox>
#include <QLabel>
#include <QMetaObject>
#include <QPainter>
#include <QProgressBar>

#include <algorithm>
#include <functional>
#include <utility>

namespace tessarolyne {

namespace {

class LabelWidget final : public Pressable<QLabel, Label> {
public:
    using Pressable::Pressable;

protected:
    bool SwallowsPresses() const override { return PressedModel().IsOverlay(); }
};

class CanvasWidget final : public Pressable<QWidget, Canvas> {
public:
    using Pressable::Pressable;

protected:
    void paintEvent(QPaintEvent* event) override {
        {
            QPainter painter(this);
            DrawPicture(painter, PressedModel().Image, rect());
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

template <typename PressableWidget>
QAccessibleInterface* MakeIfLink(QObject* object) {
    auto* const widget = dynamic_cast<PressableWidget*>(object);
    return widget == nullptr || !widget->PressedModel().IsLink
               ? nullptr
               : new LinkAccess(*widget, [widget] { widget->Press(); });
}

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
    QAccessibleInterface* const label = MakeIfLink<LabelWidget>(object);
    return label != nullptr ? label : MakeIfLink<CanvasWidget>(object);
}

} // namespace

LabelView::LabelView(Label& model, QWidget* parent)
    : ControlView(model, new LabelWidget(model, parent)), model_(model),
      label_(static_cast<QLabel*>(Widget())) {
    label_->setTextFormat(Qt::PlainText);
    QAccessible::installFactory(MakeAccess); // once, however often it is called
}

void LabelView::Read() {
    label_->setAlignment(QtAlignment(model_.TextAlignment));
    const QString plain = WithLineFeeds(model_.Text);
    const QString text = label_->buddy() == nullptr ? plain : WithAltKey(model_.Text, model_.AltKey);
    QFont font = FittingFont(*label_, plain, model_.Width);
    font.setUnderline(model_.IsLink);
    if (label_->font() != font) {
        label_->setFont(font);
    }
    label_->setForegroundRole(model_.IsLink ? QPalette::Link : QPalette::NoRole);
    if (label_->text() != text) {
        label_->setText(text);
    }
    if (model_.IsOverlay && model_.Visible) {
        label_->raise();
    }
}

void LabelView::LeadTo(QWidget* target) {
    label_->setBuddy(target);
    Update();
}

GroupBoxView::GroupBoxView(GroupBox& model, QWidget* parent)
    : ControlView(model, new GroupBoxWidget(parent)), model_(model), box_(static_cast<QGroupBox*>(Widget())) {
}

void GroupBoxView::LeadTo(QWidget* target) {
    static_cast<GroupBoxWidget*>(box_)->target = target;
}

void GroupBoxView::Read() {
    const QString caption = WithAltKey(model_.Caption, model_.AltKey);
    if (box_->title() != caption) {
        box_->setTitle(caption);
    }
    QFont font = QApplication::font(box_);
    if (constexpr int highest = 17; QFontInfo(font).pixelSize() > highest) {
        font.setPixelSize(highest); // a higher title would push the frame into what stands below
        box_->setFont(font);
    }
}

ProgressBarView::ProgressBarView(ProgressBar& model, QWidget* parent)
    : ControlView(model, new QProgressBar(parent)), model_(model),
      bar_(static_cast<QProgressBar*>(Widget())) {
    bar_->setTextVisible(false);
}

void ProgressBarView::Read() {
    constexpr int steps = 1000; // the model counts further than Qt's int
    const std::int64_t maximum = model_.Maximum;
    if (maximum <= 0) {
        bar_->setRange(0, 0);
        return;
    }
    const double share =
        std::clamp(static_cast<double>(model_.Value()) / static_cast<double>(maximum), 0.0, 1.0);
    bar_->setRange(0, steps);
    bar_->setValue(static_cast<int>(share * steps));
}

CanvasView::CanvasView(Canvas& model, QWidget* parent) : ControlView(model, new CanvasWidget(model, parent)) {
    QAccessible::installFactory(MakeAccess);
}

} // namespace tessarolyne

#include "desktop/ControlView.h"
#include "desktop/Pictures.h"
#include "desktop/Pressable.h"
#include "desktop/QtText.h"
#include "platform/Controls.h"

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

// Plain text, whatever it holds. A link is drawn in the palette's link colour; an overlay draws nothing and
// lies above all other controls.
class LabelView final : public View<Label, LabelWidget> {
public:
    LabelView(Label& model, QWidget* parent) : View(model, new LabelWidget(model, parent)) {
        widget_->setTextFormat(Qt::PlainText);
        QAccessible::installFactory(MakeAccess); // once, however often it is called
    }

    void LeadTo(QWidget* target) override {
        widget_->setBuddy(target);
        Update();
    }

private:
    void Read() override;
    std::string OwnName() const override { return model_.Text; }
};

void LabelView::Read() {
    widget_->setAlignment(QtAlignment(model_.TextAlignment));
    const QString plain = WithLineFeeds(model_.Text);
    const QString text = widget_->buddy() == nullptr ? plain : WithAltKey(model_.Text, model_.AltKey);
    QFont font = FittingFont(*widget_, plain, model_.Width);
    font.setUnderline(model_.IsLink);
    if (widget_->font() != font) {
        widget_->setFont(font);
    }
    widget_->setForegroundRole(model_.IsLink ? QPalette::Link : QPalette::NoRole);
    if (widget_->text() != text) {
        widget_->setText(text);
    }
    if (model_.IsOverlay && model_.Visible) {
        widget_->raise();
    }
}

class GroupBoxView final : public View<GroupBox, GroupBoxWidget> {
public:
    GroupBoxView(GroupBox& model, QWidget* parent) : View(model, new GroupBoxWidget(parent)) {}

    void LeadTo(QWidget* target) override { widget_->target = target; }

private:
    void Read() override {
        const QString caption = WithAltKey(model_.Caption, model_.AltKey);
        if (widget_->title() != caption) {
            widget_->setTitle(caption);
        }
        QFont font = QApplication::font(widget_);
        if (constexpr int highest = 17; QFontInfo(font).pixelSize() > highest) {
            font.setPixelSize(highest); // a higher title would push the frame into what stands below
            widget_->setFont(font);
        }
    }
};

class ProgressBarView final : public View<ProgressBar, QProgressBar> {
public:
    ProgressBarView(ProgressBar& model, QWidget* parent) : View(model, new QProgressBar(parent)) {
        widget_->setTextVisible(false);
    }

private:
    void Read() override;
};

void ProgressBarView::Read() {
    constexpr int steps = 1000; // the model counts further than Qt's int
    const std::int64_t maximum = model_.Maximum;
    if (maximum <= 0) {
        widget_->setRange(0, 0);
        return;
    }
    const double share =
        std::clamp(static_cast<double>(model_.Value()) / static_cast<double>(maximum), 0.0, 1.0);
    widget_->setRange(0, steps);
    widget_->setValue(static_cast<int>(share * steps));
}

class CanvasView final : public View<Canvas, CanvasWidget> {
public:
    CanvasView(Canvas& model, QWidget* parent) : View(model, new CanvasWidget(model, parent)) {
        QAccessible::installFactory(MakeAccess);
    }

private:
    void Read() override { widget_->update(); }
};

} // namespace

std::unique_ptr<ControlView> MakeShowingView(Control& control, QWidget* parent) {
    for (MakeView* const make : {&MakeIf<Label, LabelView>, &MakeIf<GroupBox, GroupBoxView>,
             &MakeIf<ProgressBar, ProgressBarView>, &MakeIf<Canvas, CanvasView>}) {
        if (auto view = make(control, parent)) {
            return view;
        }
    }
    return nullptr;
}

} // namespace tessarolyne

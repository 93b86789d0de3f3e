#include "desktop/ControlView.h"

#include "desktop/QtText.h"
#include "desktop/TextEdits.h"

#include "platform/Application.h"
#include "platform/Services.h"
#include "platform/Window.h"

#include <QToolTip>

namespace tessarolyne {

namespace {

constexpr int noticeTime = 4000;
constexpr int shortestToBeSeen = 150; // milliseconds

} // namespace

ControlView::ControlView(Control& control, QWidget* widget)
    : control_(control), widget_(widget),
      disabling_(control.GetWindow().GetApplication().GetServices().loop, shortestToBeSeen) {
    MendAccess();
    disabling_.Action = [this] { widget_->setEnabled(false); };
    widget_->setObjectName(ToQt(control.Name));
    // A click moves the focus into texts alone, see their views; the rest takes it from the keyboard.
    widget_->setFocusPolicy(control.TakesFocus() ? Qt::TabFocus : Qt::NoFocus);
    changed_ = control.Changed.Connect([this] {
        if (!telling_) {
            Update();
        }
    });
    notified_ = control.Notified.Connect([this](const std::string& text) {
        const QPoint below = widget_->mapToGlobal(QPoint(0, widget_->height()));
        QToolTip::showText(below, PlainToolTip(text), widget_, {}, noticeTime);
    });
}

// The widget goes later, with its parent, and must not report to a view that is gone.
ControlView::~ControlView() {
    QObject::disconnect(widget_, nullptr, widget_, nullptr);
}

void ControlView::Update() {
    if (reading_) {
        return;
    }
    const QScopedValueRollback reading(reading_, true);
    ReadCommon();
    Read();
}

void ControlView::TellModel(const std::function<void()>& tell) {
    if (telling_) {
        tell();
        return;
    }
    telling_ = true;
    tell();
    telling_ = false;
    Update();
}

// The model is disabled at once and refuses whatever comes; to the eye a state that passes sooner than it can
// be read would only flicker.
void ControlView::ReadEnabled() {
    if (control_.Enabled()) {
        disabling_.Mode = TimerMode::Off;
        widget_->setEnabled(true);
    } else if (!widget_->isVisible()) {
        widget_->setEnabled(false);
    } else if (widget_->isEnabledTo(widget_->parentWidget())) {
        disabling_.Mode = TimerMode::Single;
    }
}

std::string ControlView::WithKeys(const std::string& text) const {
    const std::string keys = control_.KeyTag;
    return text.empty() || keys.empty() ? text + keys : text + "\r" + keys;
}

void ControlView::ReadCommon() {
    const Control* parent = control_.Parent();
    widget_->setGeometry(control_.Left - (parent == nullptr ? 0 : parent->Left()),
        control_.Top - (parent == nullptr ? 0 : parent->Top()), control_.Width, control_.Height);
    ReadEnabled();
    widget_->setVisible(control_.Visible());
    widget_->setToolTip(PlainToolTip(WithKeys(control_.Explanation())));
    widget_->setAccessibleDescription(
        WithLineFeeds(control_.Notice().empty() ? WithKeys(Description()) : control_.Notice()));
    widget_->setAccessibleName(
        ToQt(control_.AccessibleName().empty() ? OwnName() : control_.AccessibleName()));
}

std::unique_ptr<ControlView> MakeControlView(Control& control, QWidget* parent) {
    auto view = MakeByFirst<MakeTextView, MakeButtonView, MakeShowingView>(control, parent);
    if (view != nullptr) {
        view->Update();
    }
    return view;
}

} // namespace tessarolyne

#include "desktop/WindowFocus.h"

#include "desktop/ControlView.h"
#include "desktop/QtText.h"
#include "platform/Controls.h"
#include "platform/Window.h"

#include <QAbstractScrollArea>
#include <QKeyEvent>
#include <QMenuBar>

#include <algorithm>

namespace tessarolyne {

namespace {

constexpr const char* viewProperty = "tessarolyneView";

ControlView* ViewOf(const QObject* widget) {
    return static_cast<ControlView*>(widget->property(viewProperty).value<void*>());
}

// The focus comes back by itself from these, and the program never saw it leave.
bool IsPassing(Qt::FocusReason reason) {
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

bool CanBeUsed(const Control& control) {
    return control.Enabled() && control.Visible() &&
           (control.Parent() == nullptr || (control.Parent()->Enabled() && control.Parent()->Visible()));
}

} // namespace

WindowFocus::WindowFocus(Window& window, QWidget& top, FindView find)
    : window_(window), top_(top), find_(std::move(find)) {}

void WindowFocus::Watch(ControlView& view) {
    view.Widget()->setProperty(viewProperty, QVariant::fromValue(static_cast<void*>(&view)));
    view.Widget()->installEventFilter(this);
    if (auto* const area = qobject_cast<QAbstractScrollArea*>(view.Widget())) {
        // The mouse presses this part of it alone.
        area->viewport()->setProperty(viewProperty, QVariant::fromValue(static_cast<void*>(&view)));
        area->viewport()->installEventFilter(this);
    }
}

void WindowFocus::Sync() {
    QWidget* const now = top_.focusWidget();
    if (syncing_ || window_.IsClosed() || qobject_cast<QMenuBar*>(now) != nullptr) {
        return;
    }
    const ControlView* view = find_(window_.Focus());
    QWidget* const wanted = view != nullptr && view->Widget()->isEnabled() ? view->Widget() : nullptr;
    if (wanted == now) {
        return;
    }
    const QScopedValueRollback syncing(syncing_, true);
    if (wanted != nullptr) {
        wanted->setFocus(Qt::OtherFocusReason);
    } else if (now != &top_) {
        now->clearFocus();
    }
}

void WindowFocus::SyncSoon() {
    QMetaObject::invokeMethod(
        this, [this] { Sync(); }, Qt::QueuedConnection);
}

void WindowFocus::Begin() {
    if (window_.Focus() == nullptr) {
        for (Control* control : window_.TabOrder(true)) {
            if (CanBeUsed(*control)) {
                control->SetFocus();
                break;
            }
        }
    }
    Sync();
}

// Until a disabled control is shown so, what comes to it goes where it will go then: keys to the window, and
// the mouse nowhere. A release still ends the press before it.
bool WindowFocus::Refused(const QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyPress:
        WindowKey(static_cast<const QKeyEvent&>(event));
        return true;
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool WindowFocus::eventFilter(QObject* watched, QEvent* event) {
    ControlView* const view = ViewOf(watched);
    if (view == nullptr || window_.IsClosed()) {
        return false;
    }
    if (!view->Model().Enabled() && Refused(*event)) {
        return true;
    }
    switch (event->type()) {
    case QEvent::KeyPress:
        return ControlKey(*view, *static_cast<QKeyEvent*>(event));
    case QEvent::InputMethod:
        return Composed(*view, *static_cast<QInputMethodEvent*>(event));
    case QEvent::MouseButtonPress:
        PressedOn(*view);
        return false;
    case QEvent::FocusIn:
        CameIn(*view, *static_cast<QFocusEvent*>(event));
        return false;
    default:
        return false;
    }
}

bool WindowFocus::ControlKey(ControlView& view, const QKeyEvent& event) {
    const std::string key = KeyText(event);
    if (!key.empty() && view.Model().UserPressedKey(key)) {
        return true;
    }
    return NavigationKey(event, key) || view.PressKey(event.key());
}

// A character that a dead key or an input method made is a key as well.
bool WindowFocus::Composed(ControlView& view, const QInputMethodEvent& event) {
    const QString& text = event.commitString();
    return text.size() == 1 && event.preeditString().isEmpty() && view.Model().UserPressedKey(FromQt(text));
}

// In a window that isn't in front Qt moves the focus at a press too, but tells nobody before the window gets
// the keyboard, and then it looks like a focus that only comes back.
void WindowFocus::PressedOn(const ControlView& view) {
    if ((view.Widget()->focusPolicy() & Qt::ClickFocus) != 0) {
        view.Model().UserFocused();
    }
}

void WindowFocus::CameIn(ControlView& view, const QFocusEvent& event) {
    if (syncing_ || window_.Focus() == &view.Model()) {
        return;
    }
    if (!IsPassing(event.reason())) {
        view.Model().UserFocused();
    }
    if (window_.Focus() != &view.Model()) {
        SyncSoon();
    }
}

bool WindowFocus::WindowKey(const QKeyEvent& event) {
    const std::string key = KeyText(event);
    if (NavigationKey(event, key) || ButtonKey(event.key())) {
        return true;
    }
    return !key.empty() && window_.UserPressedKey(key);
}

bool WindowFocus::NavigationKey(const QKeyEvent& event, const std::string& key) {
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    if (event.modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
        return false;
    }
    if (key == "\t") {
        if (!window_.UserPressedKey(key)) {
            Step(true, event.key() == Qt::Key_Tab && !shift);
        }
        return true;
    }
    if (event.key() == Qt::Key_F6) {
        Step(false, !shift);
        return true;
    }
    return false;
}

bool WindowFocus::ButtonKey(int key) {
    const bool forDefault = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!forDefault && key != Qt::Key_Escape) {
        return false;
    }
    for (Control* control : window_.Controls()) {
        auto* button = dynamic_cast<PushButton*>(control);
        if (button != nullptr && (forDefault ? button->Default() : button->Cancel())) {
            button->UserPressed();
            return true;
        }
    }
    return false;
}

void WindowFocus::Step(bool stopsOnly, bool forward) {
    Control* const next = NextUsable(stopsOnly ? window_.TabOrder(false) : window_.SightOrder(),
        window_.Focus(), forward, [=](const Control& control) { return control.IsTabStop() || !stopsOnly; });
    if (next != nullptr) {
        top_.setAttribute(Qt::WA_KeyboardFocusChange); // styles then draw the focus
        if (ControlView* view = find_(next)) {
            view->AboutToFocusByKey();
        }
        next->UserFocused();
    }
}

Control* NextUsable(const std::vector<Control*>& order, const Control* from, bool forward,
    const std::function<bool(const Control&)>& counts) {
    const auto count = order.size();
    const auto found = std::ranges::find(order, from);
    // From outside of them, the first step arrives at the first, or backwards at the last.
    std::size_t at = found != order.end() ? static_cast<std::size_t>(found - order.begin())
                     : forward            ? count - 1
                                          : 0;
    for (std::size_t steps = 0; steps < count; ++steps) {
        at = (at + (forward ? 1 : count - 1)) % count;
        if (CanBeUsed(*order[at]) && counts(*order[at])) {
            return order[at];
        }
    }
    return nullptr;
}

} // namespace tessarolyne

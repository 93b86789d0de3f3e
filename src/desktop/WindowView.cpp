#include "desktop/WindowView.h"

#include "desktop/QtText.h"
#include "platform/Application.h"
#include "platform/Services.h"
#include "platform/Window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QScrollArea>
#include <QStyle>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace tessarolyne {

// The part of a window below its menu bar: a sheet of the model's size, on which the controls stand. It
// scrolls where the screen is too small for the sheet; keys that scroll elsewhere stay the controls' own.
class WindowContent final : public QScrollArea {
public:
    explicit WindowContent(QWidget* parent) : QScrollArea(parent) {
        setWidget(new QWidget(this));
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus);
    }

    // The size that shows a sheet, or as much of it as there is room for with its scroll bars.
    QSize SizeFor(const QSize& sheet, const QSize& room) const {
        const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
        const QSize bars(sheet.height() > room.height() ? bar : 0, sheet.width() > room.width() ? bar : 0);
        return (sheet + bars).boundedTo(room);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
};

namespace {

Qt::WindowFlags Flags(const WindowFrame& frame) {
    Qt::WindowFlags flags = frame.kind == WindowFrame::Kind::MovableModal ? Qt::Dialog : Qt::Window;
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    flags.setFlag(Qt::WindowCloseButtonHint, frame.closeButton);
    flags.setFlag(Qt::WindowMinimizeButtonHint, frame.minimizeButton);
    flags.setFlag(Qt::WindowMaximizeButtonHint, frame.maximizeButton);
    return flags;
}

// Wayland neither tells a window where it stands nor lets it choose.
bool PlacesWindows() {
    return !QGuiApplication::platformName().startsWith(u"wayland");
}

} // namespace

QWidget* WindowInUse() {
    QWidget* found = QApplication::activeWindow();
    for (const QWindow* const window : QGuiApplication::topLevelWindows()) {
        const bool counts = window->type() == Qt::Window || window->type() == Qt::Dialog;
        if (found == nullptr && counts && window->isVisible()) {
            found = QWidget::find(window->winId());
        }
    }
    return found;
}

void StandBeforeOthers(QWidget& dialog) {
    const QWidget* const before = WindowInUse();
    dialog.winId();
    dialog.windowHandle()->setTransientParent(before == nullptr ? nullptr : before->windowHandle());
}

WindowView::WindowView(Window& window, QtMenu* menu)
    : QWidget(nullptr, Flags(window.Frame)), window_(window), content_(new WindowContent(this)),
      bar_(menu == nullptr ? nullptr : menu->AddTo(*this)),
      focus_(window, *this, [this](const Control* control) { return Find(control); }) {
    const bool isDialog = window.Frame.kind == WindowFrame::Kind::MovableModal;
    if (isDialog && window.Frame.blocksOthers) {
        setWindowModality(Qt::ApplicationModal);
    }
    // A screen reader tells by the role which kind of window one is in; Qt calls a mere widget a filler.
    setProperty(roleProperty, QVariant::fromValue(isDialog ? QAccessible::Dialog : QAccessible::Window));
    AddShortcuts();
    AddViews();
    Observe();
    Read();
}

// Of the digits, French and Belgian keyboards give the key's own sign as long as Shift isn't held.
void WindowView::AddShortcuts() {
    static const QString digits = QStringLiteral("1234");
    static const QString signs = QStringLiteral("&É\"'");
    for (const Window::Shortcut& shortcut : window_.Shortcuts()) {
        const QString keys = ToQt(shortcut.keys).replace(u"Cmd"_qs, u"Ctrl"_qs);
        auto* const action = new QAction(this);
        QList<QKeySequence> sequences{QKeySequence(keys)};
        if (const qsizetype digit = digits.indexOf(keys.back()); digit >= 0) {
            sequences += QKeySequence(keys.chopped(1) + signs.at(digit));
        }
        action->setShortcuts(sequences);
        connect(
            action, &QAction::triggered, this, [this, &shortcut] { window_.UserPressedShortcut(shortcut); });
        addAction(action);
    }
}

void WindowView::Observe() {
    connections_.push_back(window_.Changed.Connect([this] { Read(); }));
    connections_.push_back(window_.FocusMoved.Connect([this] {
        focus_.Sync();
        if (QWidget* const widget = FocusedWidget()) {
            content_->ensureWidgetVisible(widget);
        }
    }));
    connections_.push_back(window_.Raised.Connect([this] {
        if (isMinimized()) {
            showNormal();
        }
        raise();
        activateWindow();
    }));
    connections_.push_back(window_.Refresh.Connect([this] { repaint(); }));
    connections_.push_back(window_.Closed.Connect([this] {
        hide();
        connections_.clear();
        deleteLater();
    }));
}

// Also for controls that were made after the window was first shown.
void WindowView::AddViews() {
    for (Control* control : window_.Controls()) {
        if (Find(control) != nullptr) {
            continue;
        }
        const ControlView* parent = Find(control->Parent());
        auto view = MakeControlView(*control, parent == nullptr ? content_->widget() : parent->Widget());
        if (view == nullptr) {
            continue;
        }
        focus_.Watch(*view);
        connections_.push_back(control->Changed.Connect([this, control] {
            // It may have been enabled again. Not at once: it may as well be a field that says what it lost
            // while Qt moves the focus on, and that must not get it back.
            if (window_.Focus() == control && focusWidget() != FocusedWidget()) {
                focus_.SyncSoon();
            }
        }));
        views_.push_back(std::move(view));
    }
    for (const auto& view : views_) {
        if (const ControlView* target = Find(view->Model().AltTarget)) {
            view->LeadTo(target->Widget());
        }
    }
}

ControlView* WindowView::Find(const Control* control) const {
    const auto found = std::find_if(
        views_.begin(), views_.end(), [&](const auto& view) { return &view->Model() == control; });
    return found == views_.end() ? nullptr : found->get();
}

QWidget* WindowView::FocusedWidget() const {
    const ControlView* view = Find(window_.Focus());
    return view == nullptr ? nullptr : view->Widget();
}

void WindowView::Read() {
    if (reading_ || window_.IsClosed()) {
        return;
    }
    const QScopedValueRollback reading(reading_, true);
    if (views_.size() != window_.Controls().size()) {
        AddViews();
    }
    setWindowTitle(ToQt(window_.Title));
    content_->setCursor(window_.MouseCursor() == Cursor::Finger ? Qt::PointingHandCursor : Qt::ArrowCursor);
    ReadSize();
    ReadPlace();
    ReadVisible();
}

int WindowView::BarHeight() const {
    return bar_ == nullptr || bar_->isNativeMenuBar() ? 0 : bar_->sizeHint().height();
}

void WindowView::ReadSize() {
    const int bar = BarHeight();
    const WindowFrame& frame = window_.Frame;
    const QSize aboveIt(0, bar);
    const QSize sheet(window_.Width, window_.Height);
    QSize room = Room();
    content_->widget()->resize(sheet);
    if (frame.resizeable) {
        const QSize least = content_->SizeFor({frame.minWidth, frame.minHeight}, room);
        setMinimumSize(least + aboveIt);
        setMaximumSize(QSize(frame.maxWidth, frame.maxHeight).expandedTo(least) + aboveIt);
        room = isVisible() ? room.expandedTo(size() - aboveIt) : room; // the user may make it larger
    }
    const QSize shown = content_->SizeFor(sheet, room);
    const QSize whole = shown + aboveIt;
    if (!frame.resizeable && (minimumSize() != whole || maximumSize() != whole)) {
        setFixedSize(whole);
    } else if (size() != whole) {
        resize(whole);
    }
    if (bar > 0) {
        bar_->setGeometry(0, 0, shown.width(), bar);
    }
    content_->setGeometry(QRect(QPoint(0, bar), shown));
}

// What the screen has for the content, inside of the frame and below the menu bar.
QSize WindowView::Room() const {
    const QMargins margins = windowHandle() == nullptr ? QMargins() : windowHandle()->frameMargins();
    const QSize room = screen()->availableSize().shrunkBy(margins) - QSize(0, BarHeight());
    return room.expandedTo({1, 1});
}

// Once, when the window manager has put its frame around a window that opens: what would be beyond the
// screen's edge is pulled in, and a window of variable size that is larger than the screen becomes smaller.
void WindowView::PullOntoScreen() {
    if (placed_ || window_.IsClosed()) {
        return;
    }
    placed_ = true;
    if (window_.Frame.resizeable && window_.Height > Room().height()) {
        window_.UserResized(window_.Width, Room().height());
    }
    ReadSize();
    const QRect available = screen()->availableGeometry();
    const QRect frame = frameGeometry();
    const QPoint lastPlace(available.right() + 1 - frame.width(), available.bottom() + 1 - frame.height());
    const QPoint place(std::max(std::min(frame.left(), lastPlace.x()), available.left()),
        std::max(std::min(frame.top(), lastPlace.y()), available.top()));
    // A window without a place of its own gets one from the window manager, maybe only now: a move would undo
    // it.
    if (testAttribute(Qt::WA_Moved) && PlacesWindows()) {
        move(place);
    }
    TellPlace();
}

// A window that was never given a place is left to the window manager.
void WindowView::ReadPlace() {
    const QPoint place(window_.Left, window_.Top);
    const bool given = testAttribute(Qt::WA_Moved) || !place.isNull();
    if (given && pos() != place && PlacesWindows()) {
        move(place);
    }
}

void WindowView::ReadVisible() {
    if (window_.Visible() == isVisible()) {
        return;
    }
    if (window_.Visible()) {
        if (window_.Frame.kind == WindowFrame::Kind::MovableModal) {
            StandBeforeOthers(*this);
        }
        setAttribute(Qt::WA_ShowWithoutActivating, !window_.TakesKeyboard());
        show();
        QTimer::singleShot(0, this, [this] { focus_.Begin(); });
    } else {
        hide();
    }
}

// Through the loop's queue, so that a close while the program waits comes when the wait is over.
void WindowView::closeEvent(QCloseEvent* event) {
    event->ignore();
    window_.UserWillClose();
    EventLoop& loop = window_.GetApplication().GetServices().loop;
    loop.Post([view = QPointer(this)] {
        if (view != nullptr && !view->window_.IsClosed()) {
            view->window_.UserClosed();
        }
    });
}

void WindowView::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (!placed_ && isVisible() && !windowHandle()->frameMargins().isNull()) {
        QTimer::singleShot(0, this, [this] { PullOntoScreen(); });
    }
    TellPlace();
}

void WindowView::TellPlace() {
    if (reading_ || !PlacesWindows() || !isVisible() || !placed_ || window_.IsClosed() || isMinimized()) {
        return;
    }
    const QScopedValueRollback reading(reading_, true);
    window_.UserMoved(pos().x(), pos().y());
}

void WindowView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (reading_ || !window_.Frame.resizeable || window_.IsClosed()) {
        return;
    }
    const QScopedValueRollback reading(reading_, true);
    window_.UserResized(width(), height() - BarHeight());
    ReadSize();
}

// A window manager that knows nothing of modality, as under Wayland, activates the window behind on a click.
void WindowView::GiveKeysToDialog() {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog != nullptr && dialog != this &&
        (dialog->parentWidget() == this || dialog->windowModality() == Qt::ApplicationModal)) {
        dialog->raise();
        dialog->activateWindow();
    }
}

void WindowView::keyPressEvent(QKeyEvent* event) {
    event->setAccepted(focus_.WindowKey(*event));
}

bool WindowView::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        PullOntoScreen();
        TellPlace();
        focus_.SyncSoon();
        QTimer::singleShot(0, this, [this] { GiveKeysToDialog(); }); // else Qt takes it for this window again
    }
    return QWidget::event(event);
}

} // namespace tessarolyne

#include "desktop/TextEdits.h"

#include "desktop/Appearance.h"
#include "desktop/ControlView.h"
#include "desktop/QtText.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QClipboard>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTextDocumentFragment>
#include <algorithm>
#include <iterator>

namespace tessarolyne {

namespace {

qsizetype CommonStart(QStringView left, QStringView right) {
    const auto ends = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    return ends.first - left.begin();
}

qsizetype CommonEnd(QStringView left, QStringView right) {
    const auto ends = std::mismatch(left.rbegin(), left.rend(), right.rbegin(), right.rend());
    return ends.first - left.rbegin();
}

bool SplitsPair(QStringView text, qsizetype at) {
    return at > 0 && at < text.size() && text[at].isLowSurrogate() && text[at - 1].isHighSurrogate();
}

// All of the text has the same attributes. Qt's own says that no character has any run of attributes; a
// reader that speaks run by run then leaves out the last character, and 255 is heard as 25.
class LineAccess final : public QAccessibleWidget,
                         public QAccessibleTextInterface,
                         public QAccessibleEditableTextInterface {
public:
    explicit LineAccess(QLineEdit& line) : QAccessibleWidget(&line, QAccessible::EditableText), line_(line) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) {
            return static_cast<QAccessibleTextInterface*>(this);
        }
        return type == QAccessible::EditableTextInterface
                   ? static_cast<QAccessibleEditableTextInterface*>(this)
                   : QAccessibleWidget::interface_cast(type);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = line_.isReadOnly();
        state.editable = !line_.isReadOnly();
        state.selectableText = true;
        state.selected = line_.hasSelectedText();
        return state;
    }
    // A caption that leads here by its letter may say less than the name, and a reader would prefer it.
    QVector<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(
        QAccessible::Relation match) const override {
        return QAccessibleWidget::relations(match & ~QAccessible::Label);
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? line_.text() : QAccessibleWidget::text(kind);
    }
    void setText(QAccessible::Text kind, const QString& text) override {
        if (kind == QAccessible::Value) {
            Write(text);
        }
    }

    QString text(int start, int end) const override { return line_.text().mid(start, end - start); }
    int characterCount() const override { return static_cast<int>(line_.text().size()); }
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }
    int cursorPosition() const override { return line_.cursorPosition(); }
    void setCursorPosition(int position) override { line_.setCursorPosition(position); }
    int selectionCount() const override { return line_.hasSelectedText() ? 1 : 0; }
    void selection(int, int* start, int* end) const override {
        *start = std::max(line_.selectionStart(), 0);
        *end = std::max(line_.selectionEnd(), 0);
    }
    void addSelection(int start, int end) override { line_.setSelection(start, end - start); }
    void setSelection(int, int start, int end) override { addSelection(start, end); }
    void removeSelection(int) override { line_.deselect(); }
    QRect characterRect(int offset) const override {
        const QFontMetrics metrics(line_.font());
        const QString before = line_.text().left(line_.cursorPosition());
        const QString text = line_.text();
        const QRect caret = line_.inputMethodQuery(Qt::ImCursorRectangle).toRect();
        const int left =
            caret.left() + metrics.horizontalAdvance(text.left(offset)) - metrics.horizontalAdvance(before);
        const QPoint place = line_.mapToGlobal(QPoint(left, caret.top()));
        return {place, QSize(metrics.horizontalAdvance(text.mid(offset, 1)), caret.height())};
    }
    int offsetAtPoint(const QPoint& point) const override {
        return line_.cursorPositionAt(line_.mapFromGlobal(point));
    }
    void scrollToSubstring(int start, int) override { line_.setCursorPosition(start); }

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override {
        Write(line_.text().replace(start, end - start, text));
    }

private:
    void Write(const QString& text) {
        if (!line_.isReadOnly()) {
            line_.setText(text);
        }
    }

    QLineEdit& line_;
};

// What hands its focus on to another widget, as a text's viewport does. Qt says that both of them have it.
class ProxiedAccess final : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.focused = state.focused && widget()->focusProxy() == nullptr;
        return state;
    }
};

QAccessibleInterface* MakeAccess(const QString& className, QObject* object) {
    if (auto* const own = dynamic_cast<HasAccess*>(object)) {
        return own->MakeAccess();
    }
    if (auto* const line = qobject_cast<QLineEdit*>(object)) {
        return new LineAccess(*line);
    }
    auto* const widget = qobject_cast<QWidget*>(object);
    const QVariant role = className == QLatin1String("QDialogButtonBox")
                              ? QVariant::fromValue(QAccessible::Grouping)
                              : object->property(roleProperty);
    if (role.isValid()) {
        return new ProxiedAccess(widget, role.value<QAccessible::Role>());
    }
    const bool isPlain = className == QLatin1String("QWidget") && widget->focusProxy() != nullptr;
    return isPlain ? new ProxiedAccess(widget) : nullptr;
}

} // namespace

QPalette FaintPalette(const QWidget& parent) {
    const QColor text = parent.palette().color(QPalette::Active, QPalette::Text);
    const QColor base = parent.palette().color(QPalette::Active, QPalette::Base);
    // Contrast enough to be read: 4.8 to 1 for black on white, where WCAG 2.1 asks for 4.5. The palette's own
    // colour for hints won't do: where a desktop sets none it stays that of light schemes in dark ones.
    QPalette faint;
    faint.setColor(QPalette::Text, Mixed(base, text, 0.55F));
    return faint;
}

QMimeData* PlainEdit::createMimeDataFromSelection() const {
    auto* copied = new QMimeData;
    copied->setText(textCursor().selection().toPlainText());
    return copied;
}

// A whole drag may have gone by inside, and with it the button's release, which ends the scrolling that else
// moves the mouse, and so begins the drag, again and again.
void PlainEdit::mouseMoveEvent(QMouseEvent* event) {
    QPlainTextEdit::mouseMoveEvent(event);
    if (event->buttons().testFlag(Qt::LeftButton) &&
        !QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) {
        QMouseEvent release(QEvent::MouseButtonRelease, event->position(), event->globalPosition(),
            Qt::LeftButton, Qt::NoButton, event->modifiers());
        mouseReleaseEvent(&release);
    }
}

Replacement FindReplacement(
    const QString& before, const QString& after, qsizetype selectionStart, qsizetype caret) {
    const QStringView old(before);
    const QStringView now(after);
    qsizetype tail = now.size() - std::clamp(caret, qsizetype(0), now.size());
    if (!old.endsWith(now.last(tail))) {
        tail = CommonEnd(old, now); // an undo may leave the caret anywhere
    }
    while (SplitsPair(now, now.size() - tail) || SplitsPair(old, old.size() - tail)) {
        --tail;
    }
    qsizetype start = CommonStart(old.chopped(tail), now.chopped(tail));
    start = std::min(start, std::max(selectionStart, qsizetype(0)));
    while (SplitsPair(now, start) || SplitsPair(old, start)) {
        --start;
    }
    return {start, old.size() - tail - start, now.sliced(start, now.size() - tail - start).toString()};
}

void MendAccess() {
    QAccessible::installFactory(MakeAccess);
}

namespace {

// Who has the focus; unlike QApplication::focusWidget() only once its own handler of the focus has returned.
const QObject* focused = nullptr;

void Tell(QAccessibleEvent* event) {
    const bool isOfCaret =
        event->type() == QAccessible::TextCaretMoved || event->type() == QAccessible::TextSelectionChanged;
    if (isOfCaret && (event->object() != focused || focused != QApplication::focusWidget())) {
        return;
    }
    QAccessible::installUpdateHandler(nullptr); // Qt's own, which has no name, is what stands in its place
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(Tell);
}

} // namespace

void TellFocusBeforeCaret() {
    QAccessible::installUpdateHandler(Tell);
    QObject::connect(
        qApp, &QApplication::focusChanged, qApp, [](const QWidget*, const QWidget* now) { focused = now; });
}

void OpenContextMenu(QMenu* menu, TextControl& control, const QContextMenuEvent& event) {
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto commands =
        control.ContextCommands ? control.ContextCommands() : std::vector<TextControl::Command>();
    if (!commands.empty()) {
        menu->addSeparator();
    }
    for (const TextControl::Command& command : commands) {
        QAction* const action = menu->addAction(WithAltKey(command.caption, ""));
        QObject::connect(
            action, &QAction::triggered, menu, [&control, command] { control.UserChoseCommand(command); });
    }
    menu->popup(event.globalPos());
}

namespace {

// The edit commands act by their keys, so that they go the way of every other key.
struct EditKey {
    MenuRole role;
    Qt::Key key;
    Qt::KeyboardModifier modifier = Qt::ControlModifier;
};
constexpr EditKey editKeys[] = {{MenuRole::Cut, Qt::Key_X}, {MenuRole::Copy, Qt::Key_C},
    {MenuRole::Paste, Qt::Key_V}, {MenuRole::SelectAll, Qt::Key_A},
    {MenuRole::Clear, Qt::Key_Delete, Qt::NoModifier}};

const EditKey* KeyOf(MenuRole role) {
    const auto* const found = std::ranges::find(editKeys, role, &EditKey::role);
    return found == std::end(editKeys) ? nullptr : found;
}

} // namespace

bool IsEditRole(MenuRole role) {
    return KeyOf(role) != nullptr;
}

bool CanEdit(const QWidget* target, MenuRole role) {
    const auto* const line = qobject_cast<const QLineEdit*>(target);
    const auto* const area = qobject_cast<const QPlainTextEdit*>(target);
    if ((line == nullptr && area == nullptr) || !target->isEnabled()) {
        return false;
    }
    const bool writable = line != nullptr ? !line->isReadOnly() : !area->isReadOnly();
    if (role == MenuRole::Paste) {
        return writable && !QGuiApplication::clipboard()->text().isEmpty();
    }
    if (role == MenuRole::SelectAll) {
        return line != nullptr ? !line->text().isEmpty() : !area->document()->isEmpty();
    }
    const bool selected = line != nullptr ? line->hasSelectedText() : area->textCursor().hasSelection();
    return selected && (writable || role == MenuRole::Copy);
}

void Edit(QWidget* target, MenuRole role) {
    if (CanEdit(target, role)) {
        QKeyEvent press(QEvent::KeyPress, KeyOf(role)->key, KeyOf(role)->modifier);
        // Not by the application, for which the key may be this very command's.
        static_cast<QObject*>(target)->event(&press);
    }
}

} // namespace tessarolyne

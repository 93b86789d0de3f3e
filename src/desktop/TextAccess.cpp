#include "desktop/TextAccess.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QFontMetrics>
#include <QLineEdit>

namespace tessarolyne {

namespace {

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
    void selection(int index, int* start, int* end) const override {
        const bool found = index == 0 && line_.hasSelectedText();
        *start = found ? line_.selectionStart() : 0;
        *end = found ? line_.selectionEnd() : 0;
    }
    void addSelection(int start, int end) override { line_.setSelection(start, end - start); }
    void setSelection(int index, int start, int end) override {
        if (index == 0) {
            addSelection(start, end);
        }
    }
    void removeSelection(int index) override {
        if (index == 0) {
            line_.deselect();
        }
    }
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
    if (auto* const line = qobject_cast<QLineEdit*>(object)) {
        return new LineAccess(*line);
    }
    auto* const widget = qobject_cast<QWidget*>(object);
    if (className == QLatin1String("QDialogButtonBox")) {
        return new ProxiedAccess(widget, QAccessible::Grouping);
    }
    const bool isPlain = className == QLatin1String("QWidget") && widget->focusProxy() != nullptr;
    return isPlain ? new ProxiedAccess(widget) : nullptr;
}

} // namespace

void TellTextsAsTheyAre() {
    QAccessible::installFactory(MakeAccess); // once, however often it is called
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

} // namespace tessarolyne

#include "desktop/ControlView.h"
#include "desktop/QtText.h"
#include "desktop/TextEdits.h"
#include "platform/TextControls.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QString>
#include <QStringTokenizer>
#include <QTextCursor>
#include <QTextOption>
#include <algorithm>
#include <functional>
#include <limits>
#include <vector>

namespace tessarolyne {

namespace {

// What a line's frame and margins take from its text, and a little air.
constexpr int framePadding = 12;

// What the key types into a line; nothing for the keys of menus and for those that move or delete.
QString TypedText(const QKeyEvent& event) {
    const QString text = event.text();
    const auto modifiers = event.modifiers() & ~Qt::ShiftModifier;
    const bool types = !text.isEmpty() && (text.at(0).isPrint() || text.at(0).isSurrogate());
    return types && modifiers != Qt::ControlModifier ? text : QString();
}

// Hands on what is typed and pasted before it stands here: what the model refuses would else be among the
// steps that undo takes back, and a paste beyond the line's maximal length would be cut.
class LineEdit final : public Dimmable<QLineEdit> {
public:
    using Dimmable::Dimmable;

    std::function<bool(const QString&)> onInsert;
    std::function<void(QMenu*, const QContextMenuEvent&)> onMenu;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override {
        if (QMenu* const menu = createStandardContextMenu()) {
            onMenu(menu, *event);
        }
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (IsCommandKey(*event)) {
            event->ignore();
            return;
        }
        const bool pastes = event->matches(QKeySequence::Paste);
        const bool hasRoom = text().size() < maxLength();
        const QString inserted = pastes    ? QGuiApplication::clipboard()->text()
                                 : hasRoom ? TypedText(*event)
                                           : QString();
        if (inserted.isEmpty() || isReadOnly() || !onInsert(inserted)) {
            QLineEdit::keyPressEvent(event);
        }
    }
    // Qt's words end at the point of a number.
    void mouseDoubleClickEvent(QMouseEvent* event) override {
        QLineEdit::mouseDoubleClickEvent(event);
        if (event->button() == Qt::LeftButton && hasSelectedText()) {
            const QString all = text();
            const qsizetype start = all.lastIndexOf(u' ', selectionStart() - all.size()) + 1;
            const qsizetype end = all.indexOf(u' ', start);
            setSelection(static_cast<int>(start), static_cast<int>((end < 0 ? all.size() : end) - start));
        }
    }
    // The menu bar only borrows the focus, like a popup: what its commands act on stays selected.
    void focusOutEvent(QFocusEvent* event) override {
        QFocusEvent borrowed(QEvent::FocusOut, Qt::PopupFocusReason);
        QLineEdit::focusOutEvent(event->reason() == Qt::MenuBarFocusReason ? &borrowed : event);
    }
};

// A field as a line edit. Each edit of the user becomes one replacement in the model, whose text then stands;
// where that differs (a mask), the line is corrected so that undo still works. Of a text beyond the line's
// maximal length the beginning is shown, since Qt would lay out all of it at each key.
class FieldView final : public View<TextField, LineEdit> {
public:
    FieldView(TextField& model, QWidget* parent);

    void AboutToFocusByKey() override;

protected:
    void Read() override;

private:
    void ReadFont();
    QString Shown(const std::string& text) const;
    void ReadText();
    void ReadSelection();
    bool Inserted(const QString& text);
    void Edited();
    void EditedFromAside();
    void Selected();

    bool correcting_ = false;
};

FieldView::FieldView(TextField& model, QWidget* parent) : View(model, new LineEdit(parent)) {
    widget_->setFocusPolicy(Qt::StrongFocus);
    widget_->onInsert = [this](const QString& text) { return Inserted(text); };
    widget_->onMenu = [&model](QMenu* menu, const QContextMenuEvent& event) {
        OpenContextMenu(menu, model, event);
    };
    QObject::connect(widget_, &QLineEdit::textChanged, widget_, [this] { Edited(); });
    QObject::connect(widget_, &QLineEdit::cursorPositionChanged, widget_, [this] { Selected(); });
    QObject::connect(widget_, &QLineEdit::selectionChanged, widget_, [this] { Selected(); });
}

void FieldView::AboutToFocusByKey() {
    model_.UserSelected(0, CharacterOfUnit(model_.Text, std::numeric_limits<int>::max()));
}

void FieldView::Read() {
    widget_->setReadOnly(model_.ReadOnly);
    widget_->setAlignment(QtAlignment(model_.TextAlignment));
    widget_->SetDimmed(!model_.Remark().empty());
    ReadFont();
    ReadText();
    if (model_.HasFocus()) {
        ReadSelection();
    } else if (widget_->cursorPosition() != 0) {
        widget_->setCursorPosition(0); // a long text is read from its beginning
    }
}

// The largest number in base 2 is a little too long for the system's own font. Type that shrinks while one
// writes would only disturb.
void FieldView::ReadFont() {
    const bool isEdited = model_.HasFocus() && !model_.ReadOnly;
    const QString whole = model_.ShowsAll && !isEdited ? ToQt(model_.Text) : QString();
    widget_->setFont(FittingFont(*widget_, whole, model_.Width - framePadding, model_.TextSize));
}

QString FieldView::Shown(const std::string& text) const {
    QString shown = ToQt(text);
    shown.truncate(widget_->maxLength());
    return shown;
}

void FieldView::ReadText() {
    const QString text = Shown(model_.DisplayText());
    const QString shown = widget_->text();
    if (text == shown) {
        return;
    }
    if (!correcting_) {
        widget_->setText(text);
        return;
    }
    const Replacement change = FindReplacement(shown, text, text.size(), text.size());
    widget_->setSelection(static_cast<int>(change.start), static_cast<int>(change.removed));
    widget_->insert(change.inserted);
}

void FieldView::ReadSelection() {
    const std::string text = model_.Text;
    const int start = UnitOfCharacter(text, model_.SelStart);
    const int end = UnitOfCharacter(text, model_.SelStart + model_.SelLength);
    const int shownStart = widget_->hasSelectedText() ? widget_->selectionStart() : widget_->cursorPosition();
    const int shownEnd = widget_->hasSelectedText() ? widget_->selectionEnd() : widget_->cursorPosition();
    if (start == shownStart && end == shownEnd) {
        return;
    }
    if (start == end) {
        widget_->setCursorPosition(start);
    } else {
        widget_->setSelection(start, end - start);
    }
}

bool FieldView::Inserted(const QString& text) {
    if (!model_.HasFocus()) {
        return false;
    }
    correcting_ = true;
    TellModel([&] { model_.UserTyped(FromQt(text)); });
    correcting_ = false;
    return true;
}

void FieldView::Edited() {
    if (IsReading()) {
        return;
    }
    if (!model_.HasFocus()) {
        EditedFromAside();
        return;
    }
    const std::string text = model_.Text;
    const QString before = Shown(text);
    const Replacement change = FindReplacement(
        before, widget_->text(), UnitOfCharacter(text, model_.SelStart), widget_->cursorPosition());
    const int start = CharacterOfUnit(text, static_cast<int>(change.start));
    // What is removed up to the end that is shown takes the rest with it.
    const bool toTheEnd = change.start + change.removed == before.size();
    const int end = CharacterOfUnit(
        text, toTheEnd ? std::numeric_limits<int>::max() : static_cast<int>(change.start + change.removed));
    correcting_ = true;
    TellModel([&] { model_.UserReplaced(start, end - start, FromQt(change.inserted)); });
    correcting_ = false;
}

// Something was dropped here, or set by assistive technology. The focus comes along, since the program takes
// what the user edits without it for its own doing; the number was shown in groups, and is replaced whole.
void FieldView::EditedFromAside() {
    const std::string edited = FromQt(widget_->text());
    model_.UserFocused();
    if (model_.HasFocus()) {
        TellModel([&] { model_.UserReplaced(0, std::numeric_limits<int>::max(), edited); });
    }
    Update();
}

void FieldView::Selected() {
    if (IsReading() || !model_.HasFocus() || widget_->text() != Shown(model_.Text)) {
        return;
    }
    const std::string text = model_.Text;
    const int start = widget_->hasSelectedText() ? widget_->selectionStart() : widget_->cursorPosition();
    const int end = widget_->hasSelectedText() ? widget_->selectionEnd() : start;
    const int first = CharacterOfUnit(text, start);
    TellModel([&] { model_.UserSelected(first, CharacterOfUnit(text, end) - first); });
}

QTextCursor Selection(QTextDocument* document, const std::string& text, int start, int length) {
    QTextCursor cursor(document);
    cursor.setPosition(UnitOfCharacter(text, start));
    cursor.setPosition(UnitOfCharacter(text, start + length), QTextCursor::KeepAnchor);
    return cursor;
}

// An area as a plain text edit: carriage returns are line breaks, Tab leaves it, and a read-only one can
// still be walked through, selected and copied by keyboard.
class AreaView final : public View<TextArea, PlainEdit> {
public:
    AreaView(TextArea& model, QWidget* parent);

protected:
    void Read() override;

private:
    void ReadStyles();
    int RoomForColumns() const;
    void ReadColumns(const QString& text);
    void ReadSelection();
    void Edited();
    void Selected();

    QString shown_;
    int columnsWidth_ = 0; // what the tab stops fit
    std::vector<TextStyle> styles_;
};

AreaView::AreaView(TextArea& model, QWidget* parent) : View(model, new PlainEdit(parent)) {
    widget_->setFocusPolicy(Qt::StrongFocus);
    widget_->setTabChangesFocus(true);
    widget_->onMenu = [&model](QMenu* menu, const QContextMenuEvent& event) {
        OpenContextMenu(menu, model, event);
    };
    widget_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    widget_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    widget_->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QObject::connect(widget_, &QPlainTextEdit::textChanged, widget_, [this] { Edited(); });
    QObject::connect(widget_, &QPlainTextEdit::cursorPositionChanged, widget_, [this] { Selected(); });
    QObject::connect(widget_, &QPlainTextEdit::selectionChanged, widget_, [this] { Selected(); });
}

void AreaView::Read() {
    const Qt::TextInteractionFlags reading = Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
    widget_->setTextInteractionFlags(model_.ReadOnly ? reading : Qt::TextEditorInteraction);
    widget_->SetDimmed(!model_.Remark().empty());
    const QString text = WithLineFeeds(model_.Text);
    const bool isNew = text != shown_;
    if (model_.TabColumns > 0) {
        if (isNew || RoomForColumns() != columnsWidth_) {
            ReadColumns(text);
        }
    } else {
        widget_->setFont(FittingFont(*widget_, QString(), 0, model_.TextSize));
    }
    if (isNew) {
        shown_ = text;
        widget_->setPlainText(text);
        styles_.clear();
    }
    ReadStyles();
    if (model_.HasFocus()) {
        ReadSelection();
    }
}

void AreaView::ReadStyles() {
    if (styles_ == model_.Styles()) {
        return;
    }
    styles_ = model_.Styles();
    for (const TextStyle& style : styles_) {
        QTextCharFormat format;
        format.setFontWeight(style.bold ? QFont::Bold : QFont::Normal);
        format.setFontUnderline(style.underline);
        if (style.textSize > 0) {
            format.setProperty(QTextFormat::FontPixelSize, style.textSize);
        }
        Selection(widget_->document(), model_.Text, style.start, style.length).mergeCharFormat(format);
    }
}

// The viewport has this width only once the window was shown.
int AreaView::RoomForColumns() const {
    return widget_->width() - 2 * widget_->frameWidth() - widget_->verticalScrollBar()->sizeHint().width();
}

// Right-aligned tab stops: as many columns as the area is to have, in a smaller font if a field needs it, and
// wider than the area only if that isn't enough.
void AreaView::ReadColumns(const QString& text) {
    constexpr int gap = 6;
    int widest = 0;
    for (const QStringView line : QStringTokenizer(text, u'\n')) {
        for (const QStringView field : QStringTokenizer(line, u'\t')) {
            widest = std::max(widest, static_cast<int>(field.size()));
        }
    }
    const QString widestField(widest, u'0');
    const int margins = static_cast<int>(2 * widget_->document()->documentMargin());
    columnsWidth_ = RoomForColumns();
    const int share = (columnsWidth_ - margins) / model_.TabColumns();
    widget_->setFont(FittingFont(*widget_, widestField, share - gap, model_.TextSize));
    const int needed = QFontMetrics(widget_->font()).horizontalAdvance(widestField) + gap;
    const int column = std::max(share, needed);
    QList<QTextOption::Tab> stops;
    for (int i = 1; i <= model_.TabColumns(); ++i) {
        stops.append(QTextOption::Tab(i * column, QTextOption::RightTab));
    }
    QTextOption option = widget_->document()->defaultTextOption();
    option.setTabs(stops);
    option.setWrapMode(QTextOption::NoWrap);
    widget_->document()->setDefaultTextOption(option);
    widget_->setLineWrapMode(QPlainTextEdit::NoWrap);
    widget_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void AreaView::ReadSelection() {
    const QTextCursor cursor = Selection(widget_->document(), model_.Text, model_.SelStart, model_.SelLength);
    const QTextCursor shown = widget_->textCursor();
    if (cursor.selectionStart() != shown.selectionStart() || cursor.selectionEnd() != shown.selectionEnd()) {
        widget_->setTextCursor(cursor);
    }
}

void AreaView::Edited() {
    if (IsReading()) {
        return;
    }
    const QString now = widget_->toPlainText();
    if (now == shown_) {
        return;
    }
    const std::string text = model_.Text;
    const Replacement change = FindReplacement(
        shown_, now, UnitOfCharacter(text, model_.SelStart), widget_->textCursor().position());
    const int start = CharacterOfUnit(text, static_cast<int>(change.start));
    const int end = CharacterOfUnit(text, static_cast<int>(change.start + change.removed));
    shown_ = now;
    TellModel([&] { model_.UserReplaced(start, end - start, FromQt(change.inserted)); });
}

void AreaView::Selected() {
    if (IsReading() || !model_.HasFocus() || shown_ != WithLineFeeds(model_.Text)) {
        return;
    }
    const std::string text = model_.Text;
    const QTextCursor cursor = widget_->textCursor();
    const int first = CharacterOfUnit(text, cursor.selectionStart());
    TellModel([&] { model_.UserSelected(first, CharacterOfUnit(text, cursor.selectionEnd()) - first); });
}

} // namespace

std::unique_ptr<ControlView> MakeTextView(Control& control, QWidget* parent) {
    return MakeByFirst({&MakeIf<TextField, FieldView>, &MakeIf<TextArea, AreaView>}, control, parent);
}

} // namespace tessarolyne

#include "desktop/ControlView.h"
#include "desktop/QtText.h"
#include "desktop/TextEdits.h"
#include "platform/TextControls.h"

#include <QClipboard>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
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

    // Both where the caret is, if nothing is selected.
    int SelectionStart() const { return hasSelectedText() ? selectionStart() : cursorPosition(); }
    int SelectionEnd() const { return hasSelectedText() ? selectionEnd() : cursorPosition(); }

protected:
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

constexpr int wholeText = std::numeric_limits<int>::max();

// What views of a text share: each edit and each selection of the user is told to the model, in characters.
template <typename Model, typename Edit>
class TextView : public View<Model, Edit> {
protected:
    TextView(Model& model, Edit* edit) : View<Model, Edit>(model, edit) {
        edit->setFocusPolicy(Qt::StrongFocus);
        edit->control = &model;
        const auto selected = [this] {
            if (!this->IsReading() && this->model_.HasFocus()) {
                Selected();
            }
        };
        QObject::connect(edit, &Edit::cursorPositionChanged, edit, selected);
        QObject::connect(edit, &Edit::selectionChanged, edit, selected);
        QObject::connect(edit, &Edit::textChanged, edit, [this] {
            if (!this->IsReading()) {
                Edited();
            }
        });
    }

    virtual void Edited() = 0;
    virtual void Selected() = 0;

    // The edit shows `now` instead of `before`, which was the model's text from its beginning.
    void TellReplaced(const QString& before, const QString& now, int caret) {
        const std::string text = this->model_.Text;
        const Replacement change =
            FindReplacement(before, now, UnitOfCharacter(text, this->model_.SelStart), caret);
        const int start = CharacterOfUnit(text, static_cast<int>(change.start));
        // What is removed up to the end that is shown takes the rest with it.
        const qsizetype end = change.start + change.removed;
        const int last = CharacterOfUnit(text, end == before.size() ? wholeText : static_cast<int>(end));
        this->TellModel([&] { this->model_.UserReplaced(start, last - start, FromQt(change.inserted)); });
    }

    void TellSelected(int start, int end) {
        const std::string text = this->model_.Text;
        const int first = CharacterOfUnit(text, start);
        this->TellModel([&] { this->model_.UserSelected(first, CharacterOfUnit(text, end) - first); });
    }
};

// A field as a line edit. Each edit of the user becomes one replacement in the model, whose text then stands;
// where that differs (a mask), the line is corrected so that undo still works. Of a text beyond the line's
// maximal length the beginning is shown, since Qt would lay out all of it at each key.
class FieldView final : public TextView<TextField, LineEdit> {
public:
    FieldView(TextField& model, QWidget* parent) : TextView(model, new LineEdit(parent)) {
        widget_->onInsert = [this](const QString& text) { return Inserted(text); };
    }

    void AboutToFocusByKey() override { model_.UserSelected(0, CharacterOfUnit(model_.Text, wholeText)); }

private:
    void Read() override {
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

    // The largest number in base 2 is a little too long for the system's own font. Type that shrinks while
    // one writes would only disturb.
    void ReadFont() {
        const bool isEdited = model_.HasFocus() && !model_.ReadOnly;
        const QString whole = model_.ShowsAll && !isEdited ? ToQt(model_.Text) : QString();
        widget_->setFont(FittingFont(*widget_, whole, model_.Width - framePadding, model_.TextSize));
    }

    QString Shown(const std::string& text) const { return ToQt(text).left(widget_->maxLength()); }

    void ReadText() {
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

    void ReadSelection() {
        const std::string text = model_.Text;
        const int start = UnitOfCharacter(text, model_.SelStart);
        const int end = UnitOfCharacter(text, model_.SelStart + model_.SelLength);
        if (start == widget_->SelectionStart() && end == widget_->SelectionEnd()) {
            return;
        }
        if (start == end) {
            widget_->setCursorPosition(start);
        } else {
            widget_->setSelection(start, end - start);
        }
    }

    bool Inserted(const QString& text) {
        if (!model_.HasFocus()) {
            return false;
        }
        const QScopedValueRollback correcting(correcting_, true);
        TellModel([&] { model_.UserTyped(FromQt(text)); });
        return true;
    }

    void Edited() override {
        if (model_.HasFocus()) {
            const QScopedValueRollback correcting(correcting_, true);
            TellReplaced(Shown(model_.Text), widget_->text(), widget_->cursorPosition());
        } else {
            EditedFromAside();
        }
    }

    // Something was dropped here, or set by assistive technology. The focus comes along, since the program
    // takes what the user edits without it for its own doing; the number was shown in groups, and is replaced
    // whole.
    void EditedFromAside() {
        const std::string edited = FromQt(widget_->text());
        model_.UserFocused();
        if (model_.HasFocus()) {
            TellModel([&] { model_.UserReplaced(0, wholeText, edited); });
        }
        Update();
    }

    void Selected() override {
        if (widget_->text() == Shown(model_.Text)) {
            TellSelected(widget_->SelectionStart(), widget_->SelectionEnd());
        }
    }

    bool correcting_ = false;
};

QTextCursor Selection(QTextDocument* document, const std::string& text, int start, int length) {
    QTextCursor cursor(document);
    cursor.setPosition(UnitOfCharacter(text, start));
    cursor.setPosition(UnitOfCharacter(text, start + length), QTextCursor::KeepAnchor);
    return cursor;
}

// An area as a plain text edit: carriage returns are line breaks, Tab leaves it, and a read-only one can
// still be walked through, selected and copied by keyboard.
class AreaView final : public TextView<TextArea, PlainEdit> {
public:
    AreaView(TextArea& model, QWidget* parent) : TextView(model, new PlainEdit(parent)) {
        widget_->setTabChangesFocus(true);
        widget_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
        widget_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        widget_->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    }

private:
    void Read() override {
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

    void ReadStyles() {
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
    int RoomForColumns() const {
        return widget_->width() - 2 * widget_->frameWidth() -
               widget_->verticalScrollBar()->sizeHint().width();
    }

    // Right-aligned tab stops: as many columns as the area is to have, in a smaller font if a field needs it,
    // and wider than the area only if that isn't enough.
    void ReadColumns(const QString& text) {
        constexpr int gap = 6;
        int widest = 0;
        const QString fields = QString(text).replace(u'\n', u'\t');
        for (const QStringView field : QStringTokenizer(fields, u'\t')) {

            widest = std::max(widest, static_cast<int>(field.size()));
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

    void ReadSelection() {
        const QTextCursor cursor =
            Selection(widget_->document(), model_.Text, model_.SelStart, model_.SelLength);
        const QTextCursor shown = widget_->textCursor();
        if (cursor.selectionStart() != shown.selectionStart() ||
            cursor.selectionEnd() != shown.selectionEnd()) {
            widget_->setTextCursor(cursor);
        }
    }

    void Edited() override {
        const QString now = widget_->toPlainText();
        if (now != shown_) {
            TellReplaced(std::exchange(shown_, now), now, widget_->textCursor().position());
        }
    }

    void Selected() override {
        if (shown_ == WithLineFeeds(model_.Text)) {
            const QTextCursor cursor = widget_->textCursor();
            TellSelected(cursor.selectionStart(), cursor.selectionEnd());
        }
    }

    QString shown_;
    int columnsWidth_ = 0; // what the tab stops fit
    std::vector<TextStyle> styles_;
};

} // namespace

std::unique_ptr<ControlView> MakeTextView(Control& control, QWidget* parent) {
    return MakeByFirst<MakeIf<FieldView>, MakeIf<AreaView>>(control, parent);
}

} // namespace tessarolyne

#include "desktop/ControlView.h"
#include "platform/TextControls.h"
#include <QString>

#include "desktop/Dimmable.h"
#include "desktop/EditCommands.h"
#include "desktop/QtText.h"
#include "desktop/Replacement.h"
#include "desktop/TextAccess.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

#include <functional>
#include <limits>

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
    TellTextsAsTheyAre();
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
    if (widget_->isReadOnly() != model_.ReadOnly()) {
        widget_->setReadOnly(model_.ReadOnly);
    }
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
    const QFont font = FittingFont(*widget_, whole, model_.Width - framePadding, model_.TextSize);
    if (widget_->font() != font) {
        widget_->setFont(font);
    }
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

} // namespace

std::unique_ptr<ControlView> MakeFieldView(Control& control, QWidget* parent) {
    return MakeIf<TextField, FieldView>(control, parent);
}

} // namespace tessarolyne

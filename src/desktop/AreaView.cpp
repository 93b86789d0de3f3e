#include "desktop/ControlView.h"
#include "platform/TextControls.h"
#include <QString>
#include <vector>

#include "desktop/EditCommands.h"
#include "desktop/PlainEdit.h"
#include "desktop/QtText.h"
#include "desktop/Replacement.h"

#include <QFontMetrics>
#include <QScrollBar>
#include <QStringTokenizer>
#include <QTextCursor>
#include <QTextOption>

#include <algorithm>

namespace tessarolyne {

namespace {

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
    const Qt::TextInteractionFlags flags = model_.ReadOnly ? reading : Qt::TextEditorInteraction;
    if (widget_->textInteractionFlags() != flags) {
        widget_->setTextInteractionFlags(flags);
    }
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

std::unique_ptr<ControlView> MakeAreaView(Control& control, QWidget* parent) {
    return MakeIf<TextArea, AreaView>(control, parent);
}

} // namespace tessarolyne

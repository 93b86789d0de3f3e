#include "desktop/AreaView.h"

#include "desktop/ContextMenu.h"
#include "desktop/FittingFont.h"
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

} // namespace

AreaView::AreaView(TextArea& model, QWidget* parent)
    : ControlView(model, new PlainEdit(parent)), model_(model), edit_(static_cast<PlainEdit*>(Widget())) {
    edit_->setFocusPolicy(Qt::StrongFocus);
    edit_->setTabChangesFocus(true);
    edit_->onMenu = [&model](
                        QMenu* menu, const QContextMenuEvent& event) { OpenContextMenu(menu, model, event); };
    edit_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    edit_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    edit_->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QObject::connect(edit_, &QPlainTextEdit::textChanged, edit_, [this] { Edited(); });
    QObject::connect(edit_, &QPlainTextEdit::cursorPositionChanged, edit_, [this] { Selected(); });
    QObject::connect(edit_, &QPlainTextEdit::selectionChanged, edit_, [this] { Selected(); });
}

void AreaView::Read() {
    const Qt::TextInteractionFlags reading = Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
    const Qt::TextInteractionFlags flags = model_.ReadOnly ? reading : Qt::TextEditorInteraction;
    if (edit_->textInteractionFlags() != flags) {
        edit_->setTextInteractionFlags(flags);
    }
    edit_->SetDimmed(!model_.Remark().empty());
    const QString text = WithLineFeeds(model_.Text);
    const bool isNew = text != shown_;
    if (model_.TabColumns > 0) {
        if (isNew || RoomForColumns() != columnsWidth_) {
            ReadColumns(text);
        }
    } else {
        edit_->setFont(FittingFont(*edit_, QString(), 0, model_.TextSize));
    }
    if (isNew) {
        shown_ = text;
        edit_->setPlainText(text);
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
        format.setFontWeight(style.Bold ? QFont::Bold : QFont::Normal);
        format.setFontUnderline(style.Underline);
        if (style.TextSize > 0) {
            format.setProperty(QTextFormat::FontPixelSize, style.TextSize);
        }
        Selection(edit_->document(), model_.Text, style.Start, style.Length).mergeCharFormat(format);
    }
}

// The viewport has this width only once the window was shown.
int AreaView::RoomForColumns() const {
    return edit_->width() - 2 * edit_->frameWidth() - edit_->verticalScrollBar()->sizeHint().width();
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
    const int margins = static_cast<int>(2 * edit_->document()->documentMargin());
    columnsWidth_ = RoomForColumns();
    const int share = (columnsWidth_ - margins) / model_.TabColumns();
    edit_->setFont(FittingFont(*edit_, widestField, share - gap, model_.TextSize));
    const int needed = QFontMetrics(edit_->font()).horizontalAdvance(widestField) + gap;
    const int column = std::max(share, needed);
    QList<QTextOption::Tab> stops;
    for (int i = 1; i <= model_.TabColumns(); ++i) {
        stops.append(QTextOption::Tab(i * column, QTextOption::RightTab));
    }
    QTextOption option = edit_->document()->defaultTextOption();
    option.setTabs(stops);
    option.setWrapMode(QTextOption::NoWrap);
    edit_->document()->setDefaultTextOption(option);
    edit_->setLineWrapMode(QPlainTextEdit::NoWrap);
    edit_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void AreaView::ReadSelection() {
    const QTextCursor cursor = Selection(edit_->document(), model_.Text, model_.SelStart, model_.SelLength);
    const QTextCursor shown = edit_->textCursor();
    if (cursor.selectionStart() != shown.selectionStart() || cursor.selectionEnd() != shown.selectionEnd()) {
        edit_->setTextCursor(cursor);
    }
}

void AreaView::Edited() {
    if (IsReading()) {
        return;
    }
    const QString now = edit_->toPlainText();
    if (now == shown_) {
        return;
    }
    const std::string text = model_.Text;
    const Replacement change =
        FindReplacement(shown_, now, UnitOfCharacter(text, model_.SelStart), edit_->textCursor().position());
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
    const QTextCursor cursor = edit_->textCursor();
    const int first = CharacterOfUnit(text, cursor.selectionStart());
    TellModel([&] { model_.UserSelected(first, CharacterOfUnit(text, cursor.selectionEnd()) - first); });
}

} // namespace tessarolyne

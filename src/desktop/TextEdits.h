#pragma once

#include "platform/Application.h"
#include "platform/TextControls.h"

#include <QPlainTextEdit>

class QContextMenuEvent;
class QMenu;
namespace tessarolyne {

// The colours of `parent` with a fainter text.
QPalette FaintPalette(const QWidget& parent);

// Opens the edit's own context menu, with the control's commands at its end. Takes the menu.
void OpenContextMenu(QMenu* menu, TextControl& control, const QContextMenuEvent& event);

// An edit that can show its text fainter, also when the desktop's colours change. The colour of the text
// alone is its own; that follows the desktop's, which the parent has.
template <typename Edit>
class Dimmable : public Edit {
public:
    using Edit::Edit;

    // Whose commands the context menu has at its end; null leaves it as Qt's own.
    TextControl* control = nullptr;

    void SetDimmed(bool dimmed) {
        if (dimmed != dimmed_) {
            dimmed_ = dimmed;
            ReadPalette();
        }
    }

protected:
    void changeEvent(QEvent* event) override {
        Edit::changeEvent(event);
        if (event->type() == QEvent::PaletteChange) {
            ReadPalette();
        }
    }
    void contextMenuEvent(QContextMenuEvent* event) override {
        if (control == nullptr) {
            Edit::contextMenuEvent(event);
        } else if (QMenu* const menu = this->createStandardContextMenu()) {
            OpenContextMenu(menu, *control, *event);
        }
    }

private:
    void ReadPalette() { this->setPalette(dimmed_ ? FaintPalette(*this->parentWidget()) : QPalette()); }

    bool dimmed_ = false;
};

// A text of several lines whose copies hold the text alone, without the styles of the screen. Qt's own never
// stops to drag a selection that left it in a single move of the mouse, and takes all input for that.
class PlainEdit final : public Dimmable<QPlainTextEdit> {
public:
    using Dimmable::Dimmable;

protected:
    QMimeData* createMimeDataFromSelection() const override;
    void mouseMoveEvent(QMouseEvent* event) override;
};

// One stretch of a text put in the place of another, in UTF-16 units.
struct Replacement {
    qsizetype start = 0;
    qsizetype removed = 0;
    QString inserted;
};

// What the user did to turn `before` into `after`, with the caret then at `caret`. Where the texts alone
// leave it open ("1" typed among other ones), the caret decides; what was selected (from `selectionStart`)
// counts as replaced as a whole, so that all of a pasted text is seen.
Replacement FindReplacement(
    const QString& before, const QString& after, qsizetype selectionStart, qsizetype caret);

// Mends what Qt tells screen readers of lines of text, of widgets that lend their focus to another, and of
// those that have something of their own to tell. Once is enough, and more does no harm.
void MendAccess();

// Keeps from screen readers what a text that hasn't the focus yet says of its caret and selection. Qt tells
// of a move of the focus last, when the text that gets it has long placed its caret: a reader then takes that
// for a move within the text, and never speaks where it has come.
void TellFocusBeforeCaret();

// The edit commands of the menu on the widget with the focus.
// Cut, Copy, Paste, Clear and SelectAll.
bool IsEditRole(MenuRole role);
// Whether the command would do something there now; never without a text.
bool CanEdit(const QWidget* target, MenuRole role);
void Edit(QWidget* target, MenuRole role);

} // namespace tessarolyne

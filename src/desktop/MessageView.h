#pragma once

#include "platform/Dialogs.h"

#include <QDialog>

class QPlainTextEdit;
class QPushButton;

namespace tessarolyne {

// A message with up to three buttons. All texts are plain; a long one scrolls, so that the dialog never
// outgrows the screen. Return is the action button wherever the focus is. Escape and the close box choose no
// button, whatever the buttons say: the cancel button may open a page, or drop something.
class MessageView final : public QDialog {
public:
    MessageView(const MessageDialog& dialog, QWidget* parent);

    // None until a button was pressed.
    DialogButton Answer() const { return answer_; }

    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* MakeIcon(int icon);
    QPlainTextEdit* MakeText(const MessageDialog& dialog);
    QWidget* MakeButtons(const MessageDialog& dialog);
    void Finish(DialogButton answer);

    DialogButton answer_ = DialogButton::None;
    QPushButton* action_ = nullptr;
};

} // namespace tessarolyne

#pragma once

#include "platform/Services.h"

#include <QDialog>

class QPlainTextEdit;
class QPushButton;
class QDialog;
class QFileDialog;
class QWidget;
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

class EventLoop;
class FileSystem;
class QtStage;

// The desktop's dialogs. They run in the program's own event loop, so that a quit ends them like any other
// modal window.
class QtDialogs final : public Dialogs {
public:
    QtDialogs(EventLoop& loop, const QtStage& stage, FileSystem& files)
        : loop_(loop), stage_(stage), files_(files) {}

    DialogButton Ask(const MessageDialog& dialog) override;
    void Tell(const std::string& text) override;
    std::optional<FolderItem> ChooseFile(const FileDialog& dialog) override;
    std::optional<FolderItem> ChooseTarget(const FileDialog& dialog) override;

private:
    // The real window in which the dialog is a sheet; null for a free-standing one.
    QWidget* ParentFor(const Window* sheetOf) const;
    // Shows it and returns when it is gone or the program quits.
    void Run(QDialog& dialog);
    void SetUp(QFileDialog& chooser, const FileDialog& dialog) const;
    std::optional<FolderItem> Chosen(const QFileDialog& chooser) const;

    EventLoop& loop_;
    const QtStage& stage_;
    FileSystem& files_;
};

} // namespace tessarolyne

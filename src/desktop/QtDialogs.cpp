#include "desktop/QtDialogs.h"

#include "desktop/MessageView.h"
#include "desktop/QtStage.h"
#include "desktop/QtText.h"
#include "desktop/WindowView.h"
#include "platform/EventLoop.h"

#include <QChildEvent>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>

namespace tessarolyne {

namespace {

// Qt's own chooser asks before it takes a file that is there already, and would take a name such as "<b>.txt"
// for markup.
class PlainQuestions final : public QObject {
public:
    explicit PlainQuestions(QFileDialog& chooser) : QObject(&chooser) { chooser.installEventFilter(this); }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ChildPolished) {
            QObject* const child = static_cast<QChildEvent*>(event)->child();
            if (auto* const question = qobject_cast<QMessageBox*>(child)) {
                question->setTextFormat(Qt::PlainText);
                question->setText(VisibleText(FromQt(question->text())));
            }
        }
        return false;
    }
};

// A dialog for the time of a call. A sheet goes with its window, if a quit closes that under it.
template <typename Dialog>
class Held {
public:
    explicit Held(Dialog* dialog) : dialog_(dialog) {}
    ~Held() { delete dialog_.data(); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

    bool IsGone() const { return dialog_.isNull(); }
    Dialog& operator*() const { return *dialog_; }
    Dialog* operator->() const { return dialog_.data(); }

private:
    const QPointer<Dialog> dialog_;
};

} // namespace

DialogButton QtDialogs::Ask(const MessageDialog& dialog) {
    const Held<MessageView> view(new MessageView(dialog, ParentFor(dialog.sheetOf)));
    Run(*view);
    return view.IsGone() || loop_.IsQuitting() ? DialogButton::None : view->Answer();
}

void QtDialogs::Tell(const std::string& text) {
    MessageDialog dialog;
    dialog.message = text;
    Ask(dialog);
}

std::optional<FolderItem> QtDialogs::ChooseFile(const FileDialog& dialog) {
    const Held<QFileDialog> chooser(new QFileDialog(ParentFor(dialog.sheetOf)));
    SetUp(*chooser, dialog);
    chooser->setAcceptMode(QFileDialog::AcceptOpen);
    chooser->setFileMode(QFileDialog::ExistingFile);
    Run(*chooser);
    return chooser.IsGone() ? std::nullopt : Chosen(*chooser);
}

std::optional<FolderItem> QtDialogs::ChooseTarget(const FileDialog& dialog) {
    const Held<QFileDialog> chooser(new QFileDialog(ParentFor(dialog.sheetOf)));
    SetUp(*chooser, dialog);
    chooser->setAcceptMode(QFileDialog::AcceptSave);
    chooser->setFileMode(QFileDialog::AnyFile);
    if (dialog.suggestedName.ends_with(dialog.filterExtension)) {
        // Without it the choosers, which show only such files, would not show this one again.
        chooser->setDefaultSuffix(ToQt(dialog.filterExtension));
    }
    if (!dialog.suggestedName.empty()) {
        chooser->selectFile(QFile::decodeName(QByteArray::fromStdString(dialog.suggestedName)));
    }
    Run(*chooser);
    return chooser.IsGone() ? std::nullopt : Chosen(*chooser);
}

QWidget* QtDialogs::ParentFor(const Window* sheetOf) const {
    return sheetOf == nullptr ? nullptr : stage_.Find(sheetOf);
}

void QtDialogs::Run(QDialog& dialog) {
    if (dialog.parentWidget() == nullptr) {
        StandBeforeOthers(dialog);
    }
    bool gone = false;
    QObject::connect(&dialog, &QDialog::finished, &dialog, [&gone] { gone = true; });
    const auto destroyed = QObject::connect(&dialog, &QObject::destroyed, [&gone] { gone = true; });
    dialog.show();
    loop_.RunUntil([&gone] { return gone; });
    QObject::disconnect(destroyed);
}

void QtDialogs::SetUp(QFileDialog& chooser, const FileDialog& dialog) const {
    chooser.setWindowModality(chooser.parentWidget() != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
    chooser.setWindowTitle(VisibleText(dialog.prompt));
    new PlainQuestions(chooser);
    // A link is chosen as itself; the program resolves it where it wants the target.
    chooser.setOption(QFileDialog::DontResolveSymlinks);
    if (!dialog.filterExtension.empty()) {
        chooser.setNameFilter(ToQt(dialog.filterName + " (*" + dialog.filterExtension + ")"));
    }
    if (dialog.initialFolder) {
        chooser.setDirectory(
            QFile::decodeName(QByteArray::fromStdString(dialog.initialFolder->NativePath())));
    }
}

std::optional<FolderItem> QtDialogs::Chosen(const QFileDialog& chooser) const {
    if (loop_.IsQuitting() || chooser.result() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    const QByteArray path = QFile::encodeName(chooser.selectedFiles().constFirst());
    return FolderItem::FromNativePath(files_, path.toStdString());
}

} // namespace tessarolyne

#include "desktop/QtServices.h"
#include "desktop/QtText.h"
#include "desktop/TextEdits.h"

#include <QAccessible>
#include <QChildEvent>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <memory>

namespace tessarolyne {

namespace {

constexpr int textWidth = 420;
constexpr int scrollBar = 18; // Qt shows it first, and then keeps it if the text beside it needs it

// A screen reader gets as much as it can be asked to read out at once.
constexpr qsizetype longestName = 2000;

// The caption with the first of its letters that no button before it has, to be pressed with Alt. Which
// captions meet in a dialog is only known when it comes up.
QString WithFreeLetter(const std::string& caption, QString& taken) {
    const QString text = VisibleText(caption).replace(u'\n', u' ');
    const auto free = std::find_if(text.begin(), text.end(),
        [&](QChar c) { return c.isLetter() && !taken.contains(c, Qt::CaseInsensitive); });
    const QString letter = free == text.end() ? QString() : QString(*free);
    taken += letter;
    return WithAltKey(FromQt(text), FromQt(letter));
}

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

// A message with up to three buttons, its result the one that was pressed. All texts are plain; a long one
// scrolls, so that the dialog never outgrows the screen. Return is the action button wherever the focus is.
// Escape and the close box choose no button, whatever the buttons say: the cancel button may open a page, or
// drop something.
class MessageView final : public QDialog {
public:
    MessageView(const MessageDialog& dialog, QWidget* parent) : QDialog(parent) {
        // Read out as it comes up, and then the button that has the focus.
        setAccessibleName(VisibleText(dialog.message).trimmed().left(longestName));
        setAccessibleDescription(VisibleText(dialog.explanation).left(longestName));
        auto* const upper = new QHBoxLayout;
        upper->addWidget(MakeIcon(dialog.icon), 0, Qt::AlignTop);
        upper->addWidget(MakeText(dialog), 1);
        auto* const all = new QVBoxLayout(this);
        all->addLayout(upper, 1);
        all->addWidget(MakeButtons(dialog));
        all->setSizeConstraint(QLayout::SetFixedSize);
    }

protected:
    void showEvent(QShowEvent* event) override {
        QDialog::showEvent(event);
        action_->setFocus(Qt::OtherFocusReason);
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }

private:
    QWidget* MakeIcon(int icon) {
        auto* const label = new QLabel(this);
        const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
        const auto kind = icon == 0 ? QStyle::SP_MessageBoxInformation : QStyle::SP_MessageBoxWarning;
        label->setPixmap(
            style()->standardIcon(kind, nullptr, this).pixmap(QSize(size, size), devicePixelRatio()));
        return label;
    }

    QPlainTextEdit* MakeText(const MessageDialog& dialog) {
        auto* const edit = new PlainEdit(this);
        edit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        edit->setFocusPolicy(Qt::StrongFocus);
        edit->setTabChangesFocus(true);
        edit->setFrameShape(QFrame::NoFrame);
        edit->viewport()->setAutoFillBackground(false);
        edit->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        edit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

        const QString message = VisibleText(dialog.message);
        const QString explanation = VisibleText(dialog.explanation);
        QTextCursor cursor(edit->document());
        QTextCharFormat format;
        format.setFontWeight(explanation.isEmpty() ? QFont::Normal : QFont::Bold);
        cursor.insertText(message, format);
        if (!explanation.isEmpty()) {
            cursor.insertText(QLatin1String("\n\n") + explanation, QTextCharFormat());
        }
        edit->setAccessibleName((message + u'\n' + explanation).trimmed().left(longestName));

        // Laid out beforehand, since the edit itself counts in lines; without the margin more it would
        // scroll.
        const std::unique_ptr<QTextDocument> sheet(edit->document()->clone());
        sheet->setTextWidth(textWidth - scrollBar);
        const int height = static_cast<int>(std::ceil(sheet->size().height() + sheet->documentMargin()));
        edit->setFixedSize(textWidth, std::min(height, screen()->availableSize().height() / 2));
        return edit;
    }

    QWidget* MakeButtons(const MessageDialog& dialog) {
        auto* const box = new QDialogButtonBox(this);
        QString taken;
        const struct {
            const std::string &caption, &helpTag;
            QDialogButtonBox::ButtonRole role;
            DialogButton answer;
        } buttons[] = {{dialog.actionCaption, dialog.helpTags.action, QDialogButtonBox::AcceptRole,
                           DialogButton::Action},
            {dialog.cancelCaption, dialog.helpTags.cancel, QDialogButtonBox::RejectRole,
                DialogButton::Cancel},
            {dialog.alternateCaption, dialog.helpTags.alternate, QDialogButtonBox::DestructiveRole,
                DialogButton::Alternate}};
        for (const auto& [caption, helpTag, role, answer] : buttons) {
            if (caption.empty() && answer != DialogButton::Action) {
                continue;
            }
            auto* const button = caption.empty() ? box->addButton(QDialogButtonBox::Ok)
                                                 : box->addButton(WithFreeLetter(caption, taken), role);
            button->setAutoDefault(false); // Return belongs to the action button alone
            const QString tag = VisibleText(helpTag);
            button->setToolTip(PlainToolTip(FromQt(tag)));
            button->setAccessibleDescription(tag); // else Qt reads out the tool tip's markup
            connect(button, &QPushButton::clicked, this,
                [this, result = static_cast<int>(answer)] { done(result); });
            action_ = action_ == nullptr ? button : action_;
        }
        action_->setDefault(true);
        return box;
    }

    QPushButton* action_ = nullptr;
};

} // namespace

// Shows it until it is gone or the program quits; its result, 0 if it has none.
int QtDialogs::Run(QDialog* dialog) {
    dialog->setWindowModality(dialog->parentWidget() != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
    if (dialog->parentWidget() == nullptr) {
        StandBeforeOthers(*dialog);
    }
    bool finished = false;
    QObject::connect(dialog, &QDialog::finished, dialog, [&finished] { finished = true; });
    const QPointer<QDialog> alive(dialog); // a sheet goes with its window, if a quit closes that under it
    dialog->show();
    loop_.RunUntil([&] { return finished || alive.isNull(); });
    return alive.isNull() || loop_.IsQuitting() ? 0 : dialog->result();
}

DialogButton QtDialogs::Ask(const MessageDialog& dialog) {
    const QPointer<MessageView> view(new MessageView(dialog, stage_.Find(dialog.sheetOf)));
    const int pressed = Run(view);
    delete view.data();
    return static_cast<DialogButton>(pressed);
}

void QtDialogs::Tell(const std::string& text) {
    MessageDialog dialog;
    dialog.message = text;
    Ask(dialog);
}

std::optional<FolderItem> QtDialogs::Choose(const FileDialog& dialog) {
    const auto native = [](const std::string& name) {
        return QFile::decodeName(QByteArray::fromStdString(name));
    };
    const QPointer<QFileDialog> chooser(new QFileDialog(stage_.Find(dialog.sheetOf)));
    chooser->setWindowTitle(VisibleText(dialog.prompt));
    new PlainQuestions(*chooser);
    // A link is chosen as itself; the program resolves it where it wants the target.
    chooser->setOption(QFileDialog::DontResolveSymlinks);
    chooser->setAcceptMode(dialog.toSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    chooser->setFileMode(dialog.toSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!dialog.filterExtension.empty()) {
        chooser->setNameFilter(ToQt(dialog.filterName + " (*" + dialog.filterExtension + ")"));
    }
    if (dialog.initialFolder) {
        chooser->setDirectory(native(dialog.initialFolder->NativePath()));
    }
    if (dialog.toSave && !dialog.suggestedName.empty()) {
        if (dialog.suggestedName.ends_with(dialog.filterExtension)) {
            // Without it the choosers, which show only such files, would not show this one again.
            chooser->setDefaultSuffix(ToQt(dialog.filterExtension));
        }
        chooser->selectFile(native(dialog.suggestedName));
    }
    std::optional<FolderItem> chosen;
    if (Run(chooser) == QDialog::Accepted && !chooser->selectedFiles().isEmpty()) {
        const QByteArray path = QFile::encodeName(chooser->selectedFiles().constFirst());
        chosen = FolderItem::FromNativePath(files_, path.toStdString());
    }
    delete chooser.data();
    return chosen;
}

} // namespace tessarolyne

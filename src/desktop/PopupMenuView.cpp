#include "desktop/PopupMenuView.h"

#include "desktop/FittingFont.h"
#include "desktop/KeyText.h"
#include "desktop/QtText.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QKeyEvent>
#include <QWheelEvent>

#include <functional>

namespace tessarolyne {

namespace {

// The arrow and the frame that stand beside the row's text.
constexpr int boxPadding = 30;

class ComboBox final : public QComboBox {
public:
    using QComboBox::QComboBox;

    // A key in the list that is open. True: used.
    std::function<bool(const QKeyEvent&)> onListKey;

    bool eventFilter(QObject* watched, QEvent* event) override {
        return (event->type() == QEvent::KeyPress && onListKey(*static_cast<QKeyEvent*>(event))) ||
               QComboBox::eventFilter(watched, event);
    }

protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};

// A popup to a screen reader: called by its accessible name, described by the row that is chosen. Qt's own
// gives the row for a name, so that nobody hears what is being chosen.
class PopupMenuAccess final : public QAccessibleWidget {
public:
    explicit PopupMenuAccess(ComboBox& box) : QAccessibleWidget(&box, QAccessible::ComboBox), box_(box) {}

    QString text(QAccessible::Text kind) const override {
        const bool isRow = kind == QAccessible::Value || kind == QAccessible::Description;
        return isRow ? box_.currentText() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = box_.view()->isVisible();
        return state;
    }

    // Rows that aren't in view would tell that the chosen one has the focus.
    int childCount() const override { return box_.view()->isVisible() ? 1 : 0; }
    QAccessibleInterface* child(int index) const override {
        return index < childCount() ? QAccessible::queryAccessibleInterface(box_.view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child->object() == box_.view() ? 0 : -1;
    }

    QStringList actionNames() const override { return {showMenuAction(), setFocusAction()}; }
    void doAction(const QString& action) override {
        if (action == showMenuAction()) {
            box_.showPopup();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    ComboBox& box_;
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
    auto* const box = dynamic_cast<ComboBox*>(object);
    return box == nullptr ? nullptr : new PopupMenuAccess(*box);
}

void TellRowChanged(QComboBox* box) {
    QAccessibleEvent event(box, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

} // namespace

PopupMenuView::PopupMenuView(PopupMenu& model, QWidget* parent)
    : ControlView(model, new ComboBox(parent)), model_(model), box_(static_cast<QComboBox*>(Widget())) {
    QAccessible::installFactory(MakeAccess); // once, however often it is called
    box_->setMaxVisibleItems(20);
    static_cast<ComboBox*>(box_)->onListKey = [&model](const QKeyEvent& event) {
        const std::string key = KeyText(event);
        return !key.empty() && model.UserPressedKey(key);
    };
    box_->view()->installEventFilter(box_);
    QObject::connect(box_, &QComboBox::activated, box_,
        [this](int index) { TellModel([&] { model_.UserChose(index); }); });
    QObject::connect(box_, &QComboBox::currentIndexChanged, box_, [this] { TellRowChanged(box_); });
}

void PopupMenuView::Read() {
    box_->view()->setAccessibleName(ToQt(model_.AccessibleName)); // the list that opens takes the focus too
    QStringList rows;
    for (const std::string& row : model_.Rows()) {
        rows += ToQt(row);
    }
    QStringList shown;
    for (int i = 0; i < box_->count(); ++i) {
        shown += box_->itemText(i);
    }
    if (rows != shown) {
        box_->clear();
        box_->addItems(rows);
    }
    if (box_->currentIndex() != model_.ListIndex()) {
        box_->setCurrentIndex(model_.ListIndex());
        if (box_->view()->isVisible()) {
            box_->view()->setCurrentIndex(box_->model()->index(model_.ListIndex(), box_->modelColumn()));
        }
    }
    const QFont font = FittingFont(*box_, box_->currentText(), model_.Width - boxPadding);
    if (box_->font() != font) {
        box_->setFont(font);
    }
}

} // namespace tessarolyne

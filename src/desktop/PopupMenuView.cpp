#include "desktop/ControlView.h"
#include "platform/Controls.h"

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

// A choice of one row. The wheel turns it only while it has the focus, so that scrolling past changes
// nothing.
class PopupMenuView final : public View<PopupMenu, ComboBox> {
public:
    PopupMenuView(PopupMenu& model, QWidget* parent);

protected:
    void Read() override;
};

PopupMenuView::PopupMenuView(PopupMenu& model, QWidget* parent) : View(model, new ComboBox(parent)) {
    QAccessible::installFactory(MakeAccess); // once, however often it is called
    widget_->setMaxVisibleItems(20);
    widget_->onListKey = [&model](const QKeyEvent& event) {
        const std::string key = KeyText(event);
        return !key.empty() && model.UserPressedKey(key);
    };
    widget_->view()->installEventFilter(widget_);
    QObject::connect(widget_, &QComboBox::activated, widget_,
        [this](int index) { TellModel([&] { model_.UserChose(index); }); });
    QObject::connect(widget_, &QComboBox::currentIndexChanged, widget_, [this] { TellRowChanged(widget_); });
}

void PopupMenuView::Read() {
    widget_->view()->setAccessibleName(
        ToQt(model_.AccessibleName)); // the list that opens takes the focus too
    QStringList rows;
    for (const std::string& row : model_.Rows()) {
        rows += ToQt(row);
    }
    QStringList shown;
    for (int i = 0; i < widget_->count(); ++i) {
        shown += widget_->itemText(i);
    }
    if (rows != shown) {
        widget_->clear();
        widget_->addItems(rows);
    }
    if (widget_->currentIndex() != model_.ListIndex()) {
        widget_->setCurrentIndex(model_.ListIndex());
        if (widget_->view()->isVisible()) {
            widget_->view()->setCurrentIndex(
                widget_->model()->index(model_.ListIndex(), widget_->modelColumn()));
        }
    }
    const QFont font = FittingFont(*widget_, widget_->currentText(), model_.Width - boxPadding);
    if (widget_->font() != font) {
        widget_->setFont(font);
    }
}

} // namespace

std::unique_ptr<ControlView> MakePopupMenuView(Control& control, QWidget* parent) {
    return MakeIf<PopupMenu, PopupMenuView>(control, parent);
}

} // namespace tessarolyne

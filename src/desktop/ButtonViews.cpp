#include "desktop/ControlView.h"
#include "desktop/QtText.h"
#include "desktop/Resources.h"
#include "desktop/WindowFocus.h"
#include "platform/Controls.h"
#include "platform/Window.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace tessarolyne {

namespace {

// The room that a button's frame and a box's or dot's indicator take from the caption.
constexpr int pushPadding = 8;
constexpr int indicatorPadding = 24;

// Where no font has the pencil, a blank button would be left: it is drawn then, in the colour of the text.
class PushWidget final : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override {
        if (text() != u"✎" || fontMetrics().inFont(u'✎')) {
            QPushButton::paintEvent(event);
            return;
        }
        QStylePainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        option.text.clear();
        painter.drawControl(QStyle::CE_PushButton, option);
        const QColor ink = option.palette.color(QPalette::ButtonText);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(QRectF(rect()).center());
        painter.rotate(45); // its point is at the bottom right, as the sign's
        painter.setPen(QPen(ink, 1.2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
        painter.drawRect(QRectF(-7, -2, 9, 4));
        painter.setBrush(ink);
        painter.drawPolygon(QPolygonF({{2, -2}, {7, 0}, {2, 2}}));
    }
};

// A push button with the model's picture between bevel and caption.
class BevelWidget final : public QPushButton {
public:
    BevelWidget(BevelButton& model, QWidget* parent) : QPushButton(parent), model_(model) {}

protected:
    void enterEvent(QEnterEvent*) override { model_.MouseEnter(); }
    void leaveEvent(QEvent*) override { model_.MouseExit(); }
    void paintEvent(QPaintEvent*) override {
        QStylePainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        const Picture& icon = model_.Icon();
        const bool isColour = icon.resource.empty() && icon.width > 0;
        if (isColour) {
            option.palette.setColor(QPalette::Button, QColor::fromRgb(icon.fill));
        }
        painter.drawControl(QStyle::CE_PushButtonBevel, option);
        if (isColour && !isDown()) {
            // Inside the frame: an area of the picture's size and offset would lie on its left side.
            painter.fillRect(rect().adjusted(2, 2, -2, -2), QColor::fromRgb(icon.fill));
        } else if (!isColour && !(icon == Picture())) {
            QRect face(0, 0, icon.width, icon.height);
            face.moveCenter(rect().center());
            face.translate(model_.IconDX, model_.IconDY);
            DrawPicture(painter, icon, face);
        }
        option.palette.setColor(QPalette::ButtonText, TextColorOn(icon, option.palette));
        painter.drawControl(QStyle::CE_PushButtonLabel, option);
        if (hasFocus()) {
            QStyleOptionFocusRect focus;
            focus.initFrom(this);
            focus.rect = rect().adjusted(3, 3, -3, -3);
            painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
        }
    }

private:
    BevelButton& model_;
};

// What the four kinds of button share: a press by mouse, by Space or by a screen reader goes to the model,
// which decides; Qt's own idea of the checked state is overwritten from it.
template <typename Model, typename Widget>
class ButtonView : public View<Model, Widget> {
protected:
    ButtonView(Model& model, Widget* button) : View<Model, Widget>(model, button) {
        QObject::connect(button, &QAbstractButton::clicked, button,
            [this, &model] { this->TellModel([&model] { model.UserPressed(); }); });
    }

    std::string OwnName() const override { return this->model_.Caption; }

    // Shows the caption in a font in which it fits beside the `padding` that the kind's own parts take.
    void ShowCaption(int padding, int pixels = 0) {
        QAbstractButton& button = *this->widget_;
        const std::string caption = this->model_.Caption;
        button.setText(WithAltKey(caption, this->model_.AltKey));
        button.setFont(FittingFont(button, ToQt(caption), this->model_.Width - padding, pixels));
    }
};

class PushButtonView final : public ButtonView<PushButton, PushWidget> {
public:
    PushButtonView(PushButton& model, QWidget* parent) : ButtonView(model, new PushWidget(parent)) {}

private:
    void Read() override {
        ShowCaption(pushPadding, model_.TextSize);
        widget_->setDefault(model_.Default);
    }
};

// Shows its Value as a button that stays pressed, and its Icon behind the caption.
class BevelButtonView final : public ButtonView<BevelButton, BevelWidget> {
public:
    BevelButtonView(BevelButton& model, QWidget* parent)
        : ButtonView(model, new BevelWidget(model, parent)) {}

private:
    void Read() override {
        ShowCaption(pushPadding);
        widget_->setCheckable(model_.HasState);
        widget_->setChecked(model_.Value);
        widget_->update();
    }
};

class CheckBoxView final : public ButtonView<CheckBox, QCheckBox> {
public:
    CheckBoxView(CheckBox& model, QWidget* parent) : ButtonView(model, new QCheckBox(parent)) {}

private:
    void Read() override {
        ShowCaption(indicatorPadding);
        widget_->setChecked(model_.Value);
    }
};

// The arrow keys go round among the buttons of one parent and choose as they go.
class RadioButtonView final : public ButtonView<RadioButton, QRadioButton> {
public:
    RadioButtonView(RadioButton& model, QWidget* parent) : ButtonView(model, new QRadioButton(parent)) {}

    bool PressKey(int key) override {
        const bool forward = key == Qt::Key_Right || key == Qt::Key_Down;
        if (!forward && key != Qt::Key_Left && key != Qt::Key_Up) {
            return false;
        }
        const auto isOfGroup = [this](const Control& other) {
            return dynamic_cast<const RadioButton*>(&other) != nullptr && other.Parent() == model_.Parent();
        };
        auto* const next =
            static_cast<RadioButton*>(NextUsable(model_.GetWindow().Controls(), &model_, forward, isOfGroup));
        if (next != nullptr) {
            next->UserFocused();
            next->UserPressed();
        }
        return true;
    }

private:
    // The models exclude each other, and none may be on. Qt refuses that, but calls only an exclusive button
    // a radio button to a screen reader.
    void Read() override {
        ShowCaption(indicatorPadding);
        widget_->setAutoExclusive(false);
        widget_->setChecked(model_.Value);
        widget_->setAutoExclusive(true);
    }
};

// The arrow and the frame that stand beside the row's text.
constexpr int boxPadding = 30;

// A popup to a screen reader: called by its accessible name, described by the row that is chosen. Qt's own
// gives the row for a name, so that nobody hears what is being chosen.
class PopupMenuAccess final : public QAccessibleWidget {
public:
    explicit PopupMenuAccess(QComboBox& box) : QAccessibleWidget(&box, QAccessible::ComboBox), box_(box) {}

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
    QComboBox& box_;
};

class ComboBox final : public QComboBox, public HasAccess {
public:
    using QComboBox::QComboBox;

    QAccessibleInterface* MakeAccess() override { return new PopupMenuAccess(*this); }

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

// A choice of one row. The wheel turns it only while it has the focus, so that scrolling past changes
// nothing.
class PopupMenuView final : public View<PopupMenu, ComboBox> {
public:
    PopupMenuView(PopupMenu& model, QWidget* parent) : View(model, new ComboBox(parent)) {
        widget_->setMaxVisibleItems(20);
        widget_->onListKey = [&model](const QKeyEvent& event) {
            const std::string key = KeyText(event);
            return !key.empty() && model.UserPressedKey(key);
        };
        widget_->view()->installEventFilter(widget_);
        QObject::connect(widget_, &QComboBox::activated, widget_,
            [this](int index) { TellModel([&] { model_.UserChose(index); }); });
        QObject::connect(widget_, &QComboBox::currentIndexChanged, widget_, [this] {
            QAccessibleEvent event(widget_, QAccessible::DescriptionChanged);
            QAccessible::updateAccessibility(&event);
        });
    }

private:
    void Read() override {
        // The list that opens takes the focus too.
        widget_->view()->setAccessibleName(ToQt(model_.AccessibleName));
        if (rows_ != model_.Rows()) {
            rows_ = model_.Rows();
            widget_->clear();
            for (const std::string& row : rows_) {
                widget_->addItem(ToQt(row));
            }
        }
        if (widget_->currentIndex() != model_.ListIndex()) {
            widget_->setCurrentIndex(model_.ListIndex());
            if (widget_->view()->isVisible()) {
                widget_->view()->setCurrentIndex(
                    widget_->model()->index(model_.ListIndex(), widget_->modelColumn()));
            }
        }
        widget_->setFont(FittingFont(*widget_, widget_->currentText(), model_.Width - boxPadding));
    }

    std::vector<std::string> rows_;
};

} // namespace

std::unique_ptr<ControlView> MakeButtonView(Control& control, QWidget* parent) {
    return MakeByFirst<MakeIf<PushButtonView>, MakeIf<BevelButtonView>, MakeIf<CheckBoxView>,
        MakeIf<RadioButtonView>, MakeIf<PopupMenuView>>(control, parent);
}

} // namespace tessarolyne

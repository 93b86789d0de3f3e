#include "desktop/ButtonViews.h"

#include "desktop/FittingFont.h"
#include "desktop/Pictures.h"
#include "desktop/QtText.h"
#include "platform/Window.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>
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
    BevelWidget(const BevelButton& model, QWidget* parent) : QPushButton(parent), model_(model) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QStylePainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        const Picture& icon = model_.Icon();
        const bool isColour = icon.Resource.empty() && icon.Width > 0;
        if (isColour) {
            option.palette.setColor(QPalette::Button, QColor::fromRgb(icon.Fill));
        }
        painter.drawControl(QStyle::CE_PushButtonBevel, option);
        if (isColour && !isDown()) {
            // Inside the frame: an area of the picture's size and offset would lie on its left side.
            painter.fillRect(rect().adjusted(2, 2, -2, -2), QColor::fromRgb(icon.Fill));
        } else if (!isColour && !(icon == Picture())) {
            QRect face(0, 0, icon.Width, icon.Height);
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
    const BevelButton& model_;
};

} // namespace

ButtonView::ButtonView(Control& control, QAbstractButton* button, std::function<void()> press)
    : ControlView(control, button), button_(button) {
    QObject::connect(
        button, &QAbstractButton::clicked, button, [this, press = std::move(press)] { TellModel(press); });
}

void ButtonView::ShowCaption(const std::string& caption, int padding, int pixels) {
    const QString text = WithAltKey(caption, Model().AltKey);
    if (button_->text() != text) {
        button_->setText(text);
    }
    const QFont font = FittingFont(*button_, ToQt(caption), Model().Width - padding, pixels);
    if (button_->font() != font) {
        button_->setFont(font);
    }
}

PushButtonView::PushButtonView(PushButton& model, QWidget* parent)
    : ButtonView(model, new PushWidget(parent), [&model] { model.UserPressed(); }), model_(model),
      button_(static_cast<QPushButton*>(Widget())) {}

void PushButtonView::Read() {
    ShowCaption(model_.Caption, pushPadding, model_.TextSize);
    button_->setDefault(model_.Default);
}

BevelButtonView::BevelButtonView(BevelButton& model, QWidget* parent)
    : ButtonView(model, new BevelWidget(model, parent), [&model] { model.UserPressed(); }), model_(model),
      button_(static_cast<QPushButton*>(Widget())) {}

void BevelButtonView::Read() {
    ShowCaption(model_.Caption, pushPadding);
    button_->setCheckable(model_.HasState);
    button_->setChecked(model_.Value);
    button_->update();
}

CheckBoxView::CheckBoxView(CheckBox& model, QWidget* parent)
    : ButtonView(model, new QCheckBox(parent), [&model] { model.UserPressed(); }), model_(model),
      button_(static_cast<QCheckBox*>(Widget())) {}

void CheckBoxView::Read() {
    ShowCaption(model_.Caption, indicatorPadding);
    button_->setChecked(model_.Value);
}

RadioButtonView::RadioButtonView(RadioButton& model, QWidget* parent)
    : ButtonView(model, new QRadioButton(parent), [&model] { model.UserPressed(); }), model_(model),
      button_(static_cast<QRadioButton*>(Widget())) {}

// The models exclude each other, and none may be on. Qt refuses that, but calls only an exclusive button a
// radio button to a screen reader.
void RadioButtonView::Read() {
    ShowCaption(model_.Caption, indicatorPadding);
    button_->setAutoExclusive(false);
    button_->setChecked(model_.Value);
    button_->setAutoExclusive(true);
}

bool RadioButtonView::PressKey(int key) {
    const bool forward = key == Qt::Key_Right || key == Qt::Key_Down;
    if (!forward && key != Qt::Key_Left && key != Qt::Key_Up) {
        return false;
    }
    std::vector<RadioButton*> group;
    for (Control* control : model_.GetWindow().Controls()) {
        auto* other = dynamic_cast<RadioButton*>(control);
        if (other != nullptr && other->Parent() == model_.Parent() && other->Enabled() && other->Visible()) {
            group.push_back(other);
        }
    }
    const auto self = std::find(group.begin(), group.end(), &model_);
    if (self == group.end()) {
        return true;
    }
    const auto at = static_cast<std::size_t>(self - group.begin());
    RadioButton* const next = group[(at + (forward ? 1 : group.size() - 1)) % group.size()];
    next->UserFocused();
    next->UserPressed();
    return true;
}

} // namespace tessarolyne

#pragma once

#include "desktop/ControlView.h"
#include "platform/BevelButton.h"
#include "platform/CheckBox.h"
#include "platform/PushButton.h"
#include "platform/RadioButton.h"

#include <functional>
#include <string>

class QAbstractButton;
class QCheckBox;
class QPushButton;
class QRadioButton;

namespace tessarolyne {

// What the four kinds of button share: a press by mouse, by Space or by a screen reader goes to the model,
// which decides; Qt's own idea of the checked state is overwritten from it.
class ButtonView : public ControlView {
public:
    ButtonView(Control& control, QAbstractButton* button, std::function<void()> press);

protected:
    // Shows the caption in a font in which it fits beside the `padding` that the kind's own parts take.
    void ShowCaption(const std::string& caption, int padding, int pixels = 0);

private:
    QAbstractButton* const button_;
};

class PushButtonView final : public ButtonView {
public:
    PushButtonView(PushButton& model, QWidget* parent);

protected:
    void Read() override;
    std::string OwnName() const override { return model_.Caption; }

private:
    PushButton& model_;
    QPushButton* const button_;
};

// Shows its Value as a button that stays pressed, and its Icon behind the caption.
class BevelButtonView final : public ButtonView {
public:
    BevelButtonView(BevelButton& model, QWidget* parent);

protected:
    void Read() override;
    std::string OwnName() const override { return model_.Caption; }

private:
    BevelButton& model_;
    QPushButton* const button_;
};

class CheckBoxView final : public ButtonView {
public:
    CheckBoxView(CheckBox& model, QWidget* parent);

protected:
    void Read() override;
    std::string OwnName() const override { return model_.Caption; }

private:
    CheckBox& model_;
    QCheckBox* const button_;
};

// The arrow keys go round among the buttons of one parent and choose as they go.
class RadioButtonView final : public ButtonView {
public:
    RadioButtonView(RadioButton& model, QWidget* parent);

    bool PressKey(int key) override;

protected:
    void Read() override;
    std::string OwnName() const override { return model_.Caption; }

private:
    RadioButton& model_;
    QRadioButton* const button_;
};

} // namespace tessarolyne

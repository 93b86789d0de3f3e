#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QWidget>

namespace tessarolyne {

// Gives a widget class the mouse of a model that has MouseDown, MouseUp, MouseEnter and MouseExit: a press
// that the model takes is followed by its release. With the focus, Space and Return are a press in place.
template <typename Base, typename Model>
class Pressable : public Base {
public:
    Pressable(Model& model, QWidget* parent) : Base(parent), model_(model) {}

    Model& PressedModel() const { return model_; }
    // A press in place, without the mouse. False if the model doesn't take any.
    bool Press() {
        const bool taken = model_.UserPressed(0, 0);
        if (taken) {
            model_.MouseUp(0, 0);
        }
        return taken;
    }

protected:
    void mousePressEvent(QMouseEvent* event) override {
        const QPoint at = event->position().toPoint();
        pressed_ = event->button() == Qt::LeftButton && model_.UserPressed(at.x(), at.y());
        // An overlay keeps its presses to itself, also those that the model doesn't follow.
        event->setAccepted(pressed_ || SwallowsPresses());
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        const QPoint at = event->position().toPoint();
        if (pressed_ && event->button() == Qt::LeftButton) {
            pressed_ = false;
            model_.MouseUp(at.x(), at.y());
        }
    }
    void enterEvent(QEnterEvent*) override { model_.MouseEnter(); }
    void leaveEvent(QEvent*) override { model_.MouseExit(); }

    void keyPressEvent(QKeyEvent* event) override {
        const bool presses =
            event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (presses && event->isAutoRepeat()) {
            return; // a key that is held down is one press
        }
        if (!presses || !Press()) {
            event->ignore();
        }
    }

    void paintEvent(QPaintEvent* event) override {
        Base::paintEvent(event);
        if (this->hasFocus()) {
            QStylePainter painter(this);
            QStyleOptionFocusRect focus;
            focus.initFrom(this);
            focus.state |= QStyle::State_KeyboardFocusChange;
            painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
        }
    }

    virtual bool SwallowsPresses() const { return false; }

private:
    Model& model_;
    bool pressed_ = false;
};

} // namespace tessarolyne

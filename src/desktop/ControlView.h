#pragma once

#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "platform/Window.h"

#include <QAccessible>
#include <QScopedValueRollback>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>

namespace tessarolyne {

// A widget that tells screen readers of itself what Qt wouldn't. Null is as Qt would.
class HasAccess {
public:
    virtual ~HasAccess() = default;
    virtual QAccessibleInterface* MakeAccess() = 0;
};

// The property of a widget that is to have this role (QAccessible::Role) for screen readers, not Qt's.
inline constexpr const char* roleProperty = "tessarolyneRole";

// What draws one control: holds its widget and keeps place, visibility, enabling, help tag and accessible
// name in step with the model. A kind of control adds its own state in Read(). The widget belongs to its
// parent widget, and the view lives as long as the window's view.
class ControlView {
public:
    ControlView(Control& control, QWidget* widget);
    virtual ~ControlView();
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    Control& Model() const { return control_; }
    QWidget* Widget() const { return widget_; }

    // Reads the whole state from the model.
    void Update();

    // Of a control with an AltTarget: its widget, to which Alt with the letter brings the keyboard.
    virtual void LeadTo(QWidget*) {}
    // Where Tab or F6 arrives by keyboard: what is selected then.
    virtual void AboutToFocusByKey() {}
    // A key that the model left alone and that means more here than to Qt. True: used.
    virtual bool PressKey([[maybe_unused]] int key) { return false; }

protected:
    // The part of the state that this kind adds. Runs with IsReading() true.
    virtual void Read() = 0;
    // Whether the view is bringing the widget in line: what the widget reports then isn't the user's doing.
    bool IsReading() const { return reading_; }
    // Hands something to the model, and reads the model once afterwards, whatever it said meanwhile.
    void TellModel(const std::function<void()>& tell);
    // The caption or text that serves as accessible name where the model gives none.
    virtual std::string OwnName() const { return {}; }
    // What a screen reader adds to the name.
    virtual std::string Description() const { return control_.Explanation(); }

private:
    void ReadCommon();
    void ReadEnabled();
    std::string WithKeys(const std::string& text) const;

    Control& control_;
    QWidget* const widget_;
    bool reading_ = false;
    bool telling_ = false;
    Timer disabling_;
    Connection changed_;
    Connection notified_;
};

// The view of one kind of model by one kind of widget.
template <typename ModelKind, typename WidgetKind>
class View : public ControlView {
public:
    using ModelType = ModelKind;

protected:
    View(ModelKind& model, WidgetKind* widget) : ControlView(model, widget), model_(model), widget_(widget) {}

    ModelKind& model_;
    WidgetKind* const widget_;
};

template <typename ViewKind>
std::unique_ptr<ControlView> MakeIf(Control& control, QWidget* parent) {
    auto* model = dynamic_cast<typename ViewKind::ModelType*>(&control);
    return model == nullptr ? nullptr : std::make_unique<ViewKind>(*model, parent);
}

// What each file of views makes of a control of its kinds; nothing of any other.
using MakeView = std::unique_ptr<ControlView>(Control& control, QWidget* parent);
MakeView MakeTextView, MakeButtonView, MakeShowingView;

// What the first of them makes of it that makes anything.
template <MakeView*... makers>
std::unique_ptr<ControlView> MakeByFirst(Control& control, QWidget* parent) {
    std::unique_ptr<ControlView> view;
    ((view = makers(control, parent)) || ...);
    return view;
}

// The view of a control of any kind, its widget made inside `parent`.
std::unique_ptr<ControlView> MakeControlView(Control& control, QWidget* parent);

} // namespace tessarolyne

#pragma once

#include "desktop/ControlView.h"
#include "platform/Canvas.h"
#include "platform/GroupBox.h"
#include "platform/Label.h"
#include "platform/ProgressBar.h"

class QGroupBox;
class QLabel;
class QProgressBar;

// The views of the controls that only show something, or show it and answer the mouse.
namespace tessarolyne {

// Plain text, whatever it holds. A link is drawn in the palette's link colour; an overlay draws nothing and
// lies above all other controls.
class LabelView final : public ControlView {
public:
    LabelView(Label& model, QWidget* parent);

    void LeadTo(QWidget* target) override;

protected:
    void Read() override;
    std::string OwnName() const override { return model_.Text; }

private:
    Label& model_;
    QLabel* const label_;
};

class GroupBoxView final : public ControlView {
public:
    GroupBoxView(GroupBox& model, QWidget* parent);

    void LeadTo(QWidget* target) override;

protected:
    void Read() override;

private:
    GroupBox& model_;
    QGroupBox* const box_;
};

class ProgressBarView final : public ControlView {
public:
    ProgressBarView(ProgressBar& model, QWidget* parent);

protected:
    void Read() override;

private:
    ProgressBar& model_;
    QProgressBar* const bar_;
};

class CanvasView final : public ControlView {
public:
    CanvasView(Canvas& model, QWidget* parent);

protected:
    void Read() override { Widget()->update(); }
};

} // namespace tessarolyne

#pragma once

#include "desktop/ControlView.h"
#include "platform/ProgressWheel.h"

namespace tessarolyne {

// Spokes that turn; the timer runs only while they can be seen. To a screen reader it is a progress bar,
// which it speaks of by itself, as often as its user likes.
class WheelView final : public ControlView {
public:
    WheelView(ProgressWheel& model, QWidget* parent);

protected:
    void Read() override;
    std::string Description() const override { return model_.Spoken; }

private:
    ProgressWheel& model_;
    std::int64_t toldValue_ = 0;
};

} // namespace tessarolyne

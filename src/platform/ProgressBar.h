#pragma once

#include "platform/Control.h"

#include <cstdint>

namespace tessarolyne {

// How far something is, from 0 to Maximum. A Value beyond is shown as full; a Maximum of 0 as not known.
class ProgressBar final : public Control {
public:
    using Control::Control;

    Property<std::int64_t> Maximum{*this, 100};
    Property<std::int64_t> Value{*this, 0};
};

} // namespace tessarolyne

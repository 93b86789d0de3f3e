#pragma once

#include "platform/Controls.h"

#include <memory>
#include <string>
#include <vector>

namespace tessarolyne {

class Fncts;

// The control array LabBlockUI of a window. Member 0 is the layout's; member 1, made when the window opens,
// is stretched over the window while a sheet is up on another one, so that a press lands on it and beeps.
class BlockingOverlay {
public:
    BlockingOverlay(Window& window, Fncts& fncts, TabTurn tab);

    // The Open event of the members: makes member 1.
    void Open();

private:
    void LabBlockUI_Open(Label& label);
    void Append(std::string name, Place place, TabTurn tab);

    Window& window_;
    Fncts& fncts_;
    std::vector<std::unique_ptr<Label>> members_;
};

} // namespace tessarolyne

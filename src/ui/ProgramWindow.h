#pragma once

#include "app/App.h"
#include "platform/Window.h"
#include "ui/Fncts.h"

#include <string>

namespace tessarolyne {

class Program;

// The least Top of a window that is placed, below a menu bar.
inline constexpr int smallestTop = 38;

// What every window of the program has at hand: the program that it belongs to, and its two shared objects by
// the names under which the handlers speak of them.
class ProgramWindow : public Window {
public:
    ProgramWindow(Program& owner, std::string title, int width, int height, WindowFrame frame);

protected:
    Program& program;
    App& app;
    Fncts& fncts;
};

} // namespace tessarolyne

#include "ui/ProgramWindow.h"

#include "app/Program.h"

#include <utility>

namespace tessarolyne {

ProgramWindow::ProgramWindow(Program& owner, std::string title, int width, int height, WindowFrame frame)
    : Window(owner.app, std::move(title), width, height, frame), program(owner), app(owner.app),
      fncts(owner.fncts) {}

} // namespace tessarolyne

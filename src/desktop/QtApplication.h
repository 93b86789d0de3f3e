#pragma once

#include "desktop/Appearance.h"
#include "platform/Event.h"

#include <QApplication>

#include <functional>
#include <string>

namespace tessarolyne {

// Qt's application object, set up for this program: the session's display, X or Wayland, from left to right,
// no quit of its own, and the desktop's requests handed on. Made first thing in main(), after nothing but the
// machine. Where there is no display it ends the process with one line and status 1.
class QtApplication final : public QApplication {
public:
    // `identifier` is the reverse domain name of the desktop entry. Qt keeps references to the command line.
    QtApplication(const std::string& name, const std::string& identifier, int& count, char** arguments);

    // Calls back on the main thread whenever the descriptor can be read; for signals of the machine.
    void WatchDescriptor(int descriptor, std::function<void()> readable);

    // The user's desktop session ends: the program must too, without asking.
    Event<void()> OnSessionEnds;
    // The desktop asks the application to quit, as from a dock.
    Event<void()> OnQuitRequested;

    bool event(QEvent* event) override;

private:
    void LoadIcon();

    ColorScheme colors_;
};

} // namespace tessarolyne

#pragma once

#include <QTimer>

#include <memory>

class QDBusPendingCallWatcher;

namespace tessarolyne {

// Dark colours where the desktop prefers them but Qt 6.4 doesn't see it: GNOME and others tell it by the
// desktop portal's settings alone. Colours that the desktop gives Qt itself, as KDE does, stay as they are.
// The answer comes with the event loop, at the start and whenever the user changes the setting; without a
// session bus or a portal nothing is asked.
class ColorScheme final {
public:
    ColorScheme();
    ~ColorScheme();
    ColorScheme(const ColorScheme&) = delete;
    ColorScheme& operator=(const ColorScheme&) = delete;

private:
    void Ask();
    void Take(bool isDark);

    bool isDark_ = false;
    QTimer changed_; // started by the portal's signal: a timer's start is a slot that takes no values
    std::unique_ptr<QDBusPendingCallWatcher> answer_;
};

} // namespace tessarolyne

#pragma once

#include <QObject>

#include <functional>
#include <string>
#include <vector>

class QFocusEvent;
class QInputMethodEvent;
class QKeyEvent;
class QWidget;

namespace tessarolyne {

class Control;
class ControlView;
class Window;

// The control after `from` in the order, or backwards the one before, that can be used now and counts; round
// its ends, so that it may be `from` again. Null if there is none.
Control* NextUsable(const std::vector<Control*>& order, const Control* from, bool forward,
    const std::function<bool(const Control&)>& counts);

// The keys and the focus of one window. The model says which control has the focus, and Qt follows: a control
// that is disabled keeps the program's focus though Qt must take it away for the time, and a menu, a popup or
// another window in front leaves it alone. Tab goes to the stops, F6 to every control that can be used, in
// the order of sight.
class WindowFocus final : public QObject {
public:
    using FindView = std::function<ControlView*(const Control*)>;

    WindowFocus(Window& window, QWidget& top, FindView find);

    // Takes the keys and focus events of a control's widget.
    void Watch(ControlView& view);
    // Gives Qt's focus to the model's control, if that can have it now.
    void Sync();
    // Sync, once the events under way are done.
    void SyncSoon();
    // The first Tab stop gets the focus if nothing has it yet.
    void Begin();

    // A key that no control used: the window's, then Tab, F6, the default and the cancel button. True: used.
    bool WindowKey(const QKeyEvent& event);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Refused(const QEvent& event);
    bool ControlKey(ControlView& view, const QKeyEvent& event);
    bool Composed(ControlView& view, const QInputMethodEvent& event);
    void PressedOn(const ControlView& view);
    void CameIn(ControlView& view, const QFocusEvent& event);
    bool NavigationKey(const QKeyEvent& event, const std::string& key);
    bool ButtonKey(int key);
    void Step(bool stopsOnly, bool forward);

    Window& window_;
    QWidget& top_;
    FindView find_;
    bool syncing_ = false;
};

} // namespace tessarolyne

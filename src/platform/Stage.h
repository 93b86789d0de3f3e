#pragma once

namespace tessarolyne {

class Window;

// The size of a screen, in points.
struct ScreenSize {
    int width = 0;
    int height = 0;
};

// Where a window stands, in points from the top left of the first screen.
struct WindowPlace {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

// Where windows are seen: draws a window that is shown for the first time and keeps the drawing in step with
// the model until the window closes.
class Stage {
public:
    virtual ~Stage() = default;
    virtual void Present(Window& window) = 0;
    // The first screen.
    virtual ScreenSize Screen() const = 0;
    // Whether the place lies whole on a screen other than the first.
    virtual bool IsOnOtherScreen(const WindowPlace& place) const = 0;
};

} // namespace tessarolyne

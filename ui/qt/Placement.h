// Placement.h: keeps the place of a window in the model and its place on the screen the same.
#pragma once

#include "ui/layer/Window.h"

class QWidget;

namespace malvone::qt {

// Left and Top of the model are the corner of the outer frame, counted from the corner of the
// primary screen.
class Placement
{
public:
    Placement(QWidget& widget, Window& window) : widget_(widget), window_(window) {}

    // Puts the window where the model says. Some window managers move a window by its own title bar
    // each time it is hidden and shown, unless it has just been placed.
    void ToScreen();
    // Tells the model what the player or the window manager has done: place, and size with frame.
    void FromScreen();
    // Before the first show only the menu bar is known of what surrounds the client area.
    void TellSize();

private:
    QWidget& widget_;
    Window& window_;
    bool telling_ = false;
};

// Whether programs may place their windows on this desktop.
bool WindowsCanBePlaced();

}  // namespace malvone::qt

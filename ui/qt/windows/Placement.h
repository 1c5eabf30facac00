// Placement.h: keeps the place of a window in the model and its place on the screen the same.
#pragma once

#include <QMargins>
#include <QRect>
#include <QSizeF>

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
    // A place that does not lie wholly on a screen becomes the nearest one that does.
    void OntoScreen();
    bool Fits() const;
    // Tells the model what the player or the window manager has done: place, and size with frame.
    void FromScreen();
    // Before the first show only the menu bar is known of what surrounds the client area.
    void TellSize();

private:
    QWidget& widget_;
    Window& window_;
    bool telling_ = false;
    bool framed_ = false;  // the frame has come to light

    QRect Outer() const;
    void KeepCentred(const QMargins& frame);
};

// The size of a window's designed client area in Qt's pixels, and at another scale.
QSizeF DesignOf(const Window& window);
QSize SizeOf(const Window& window, double factor);

// The scale, 1 or less, at which a design with its menu and a frame has room on the primary screen.
// `height` is that of design and menu.
double FactorOnScreen(const QSizeF& design, int height);

}  // namespace malvone::qt

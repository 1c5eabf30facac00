// Placement.h: keeps a window's place in the model and on the screen the same.
#pragma once

#include <QDeadlineTimer>
#include <QMargins>
#include <QRect>
#include <QSize>

#include "ui/layer/Window.h"

class QWidget;

namespace malvone::qt {

// The model's Left and Top are the corner of the outer frame, from the corner of the primary
// screen.
class Placement
{
public:
    Placement(QWidget& widget, Window& window) : widget_(widget), window_(window) {}

    // Moves the window to its place in the model. Call before each show, too: some window managers
    // move a window that is shown again by the height of its title bar.
    void ToScreen();
    // Moves the model's place to the nearest one that lies wholly on a screen.
    void OntoScreen();
    // Whether a window of this size, with its frame, has room on a screen.
    bool Fits(QSize size) const;
    // Tells the model the place, and the size with the frame, that the player or the window manager
    // has chosen.
    void FromScreen();
    // Before the first show the frame is unknown and left out.
    void TellSize();

private:
    QWidget& widget_;
    Window& window_;
    bool telling_ = false;
    bool framed_ = false;  // the frame is known
    // A new window insists on its place, once: i3 moves one without a frame by the frame that it
    // does not get.
    QDeadlineTimer insisting_;

    QRect Outer() const;
    void KeepCentred(const QMargins& frame);
};

}  // namespace malvone::qt

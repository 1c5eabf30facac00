// PointerInput.h: passes the pointer to the model, and shows cursor and tips.
#pragma once

#include <QPoint>
#include <QPointF>

#include "ui/layer/Window.h"

class QEvent;
class QHelpEvent;
class QMouseEvent;
class QWidget;

namespace malvone::qt {

class Scale;

class PointerInput
{
public:
    // All three must outlive this, the model only until Detach.
    PointerInput(QWidget& widget, Window& model, const Scale& scale)
        : widget_(widget), model_(&model), scale_(scale)
    {}

    // Returns whether the event was one of the pointer's. Call before Detach only.
    bool Handle(const QEvent& event);

    // The window follows the pointer until the button is released.
    void Drag();

    // The topmost control under a place of the widget; null outside the design.
    Visual* ControlUnder(QPointF position) const;

    // Call before the model is destroyed.
    void Detach() { model_ = nullptr; }

private:
    QWidget& widget_;
    Window* model_;
    const Scale& scale_;
    QPoint pressedAt_;  // pointer and frame's corner at the last press, on the screen
    QPoint frameAtPress_;
    bool dragging_ = false;

    void Pressed(const QMouseEvent& event);
    void Moved(const QMouseEvent& event);
    void Released(const QMouseEvent& event);
    void ShowTip(const QHelpEvent& event) const;
    Mouse ToMouse(const QMouseEvent& event, Qt::MouseButtons buttons) const;
    // What the pointer can act on now: nothing once a handler has taken the window away.
    const Visual* Target(QPointF position) const;
    void UpdateCursor(QPointF position) const;
};

}  // namespace malvone::qt

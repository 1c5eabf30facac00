// PointerInput.h: the pointer over a window: what the model hears of it, and what shows where it
// is.
#pragma once

#include <QPoint>
#include <QPointF>

#include "ui/layer/Window.h"

class QHelpEvent;
class QMouseEvent;
class QWidget;

namespace malvone::qt {

class Scale;

class PointerInput
{
public:
    // All three have to outlive this, but for the model after Detach.
    PointerInput(QWidget& widget, Window& model, const Scale& scale)
        : widget_(widget), model_(&model), scale_(scale)
    {}

    void Pressed(const QMouseEvent& event);
    void Moved(const QMouseEvent& event);
    void Released(const QMouseEvent& event);
    void ShowTip(const QHelpEvent& event);

    // The window follows the pointer until the button is released.
    void Drag();

    // The topmost control under a place of the widget; null beside the designed client area.
    Visual* ControlUnder(QPointF position) const;

    // The model is about to be destroyed.
    void Detach() { model_ = nullptr; }

private:
    QWidget& widget_;
    Window* model_;
    const Scale& scale_;
    QPoint pressedAt_;  // the pointer and the frame's corner at the last press, on the screen
    QPoint frameAtPress_;
    bool dragging_ = false;

    Mouse ToMouse(const QMouseEvent& event, std::int16_t button) const;
    // What the pointer can act on at present.
    const Visual* Target(QPointF position) const;
    void UpdateCursor(QPointF position);
};

}  // namespace malvone::qt

// PointerRouting.cpp: who gets the pointer.
#include "ui/layer/PointerRouting.h"

#include "ui/layer/App.h"

namespace malvone {
namespace {

bool Seen(const Visual& visual)
{
    return visual.Visible && (visual.Container() == nullptr || visual.Container()->Visible);
}

Mouse Within(const Visual& visual, const Mouse& mouse)
{
    Mouse inside = mouse;
    inside.X -= visual.WindowLeft();
    inside.Y -= visual.WindowTop();
    return inside;
}

}  // namespace

Visual* ControlAt(const Window& window, Twips x, Twips y)
{
    for (Visual* const visual : window.FrontToBack()) {
        if (visual->TakesPointer() && Seen(*visual) && visual->Covers(x, y)) {
            return visual;
        }
    }
    return nullptr;
}

void PointerPressed(Window& window, const Mouse& mouse)
{
    if (!App.TakesInput(window)) {
        return;
    }
    const EventScope scope;
    if (window.Pressed == nullptr && !window.SurfacePressed) {
        window.Pressed = ControlAt(window, mouse.X, mouse.Y);
        window.SurfacePressed = window.Pressed == nullptr;
    }
    if (Visual* const target = window.Pressed; target != nullptr && target->Enabled) {
        target->MouseDown.Raise(target->Index(), Within(*target, mouse));
    }
}

void PointerMoved(Window& window, const Mouse& mouse)
{
    if (!App.TakesInput(window)) {
        return;
    }
    const EventScope scope;
    const bool held = window.Pressed != nullptr || window.SurfacePressed;
    Visual* const target = held ? window.Pressed : ControlAt(window, mouse.X, mouse.Y);
    if (target == nullptr) {
        window.Form_MouseMove(mouse);
    } else if (target->Enabled) {
        target->MouseMove.Raise(target->Index(), Within(*target, mouse));
    }
}

void PointerReleased(Window& window, const Mouse& mouse)
{
    Visual* const target = window.Pressed;
    window.ReleaseCapture();
    if (!App.TakesInput(window) || target == nullptr || !target->Enabled) {
        return;
    }
    const EventScope scope;
    target->MouseUp.Raise(target->Index(), Within(*target, mouse));
    if (mouse.Button == kLeftButton && App.TakesInput(window) && target->Reachable() &&
        target->Covers(mouse.X, mouse.Y)) {
        target->RaiseClick();
    }
}

}  // namespace malvone

// PointerRouting.cpp: which control gets the events of the pointer.
#include "ui/layer/PointerRouting.h"

#include "ui/layer/App.h"
#include "ui/layer/Highlight.h"
#include "ui/layer/Routing.h"

namespace malvone {
namespace {

Mouse Within(const Visual& visual, const Mouse& mouse)
{
    Mouse inside = mouse;
    inside.X -= visual.WindowLeft();
    inside.Y -= visual.WindowTop();
    return inside;
}

// While something is pressed, it gets events from anywhere, else only from the client area.
bool GetsPointer(const Window& window, const Mouse& mouse)
{
    return App.TakesInput(window) && (window.Pressed() || window.InClient(mouse.X, mouse.Y));
}

// Notes where the pointer is. Returns whether it was there before.
bool Rests(Window& window, const Mouse& mouse)
{
    auto& routed = Routing::Of(window);
    const bool rests = routed.PointerX == mouse.X && routed.PointerY == mouse.Y;
    routed.PointerX = mouse.X;
    routed.PointerY = mouse.Y;
    return rests;
}

std::vector<Picture> PicturesOf(const Window& window)
{
    std::vector<Picture> pictures;
    for (const Visual* const visual : window.FrontToBack()) {
        if (const auto* const image = dynamic_cast<const Image*>(visual)) {
            pictures.push_back(image->Picture);
        }
    }
    return pictures;
}

}  // namespace

Visual* ControlAt(const Window& window, Twips x, Twips y)
{
    if (!window.InClient(x, y)) {
        return nullptr;
    }
    for (Visual* const visual : window.FrontToBack()) {
        if (visual->TakesPointer() && visual->Seen() && visual->Covers(x, y)) {
            return visual;
        }
    }
    return nullptr;
}

Mouse MiddleOf(const Visual& visual, std::int16_t button)
{
    return {button, 0, visual.WindowLeft() + visual.Width / 2,
            visual.WindowTop() + visual.Height / 2};
}

void PointerPressed(Window& window, const Mouse& mouse)
{
    if (!GetsPointer(window, mouse)) {
        return;
    }
    const EventScope scope;
    std::optional<Visual*>& pressed = Routing::Of(window).Pressed;
    if (!pressed) {
        pressed = ControlAt(window, mouse.X, mouse.Y);
    }
    // Keys may have pointed elsewhere in the meantime, but a click acts on what was pointed at
    // last.
    if (mouse.Button == kLeftButton && window.Highlighted() != nullptr &&
        window.Highlighted() != pressed) {
        Hover(window, mouse);
    }
    if (Visual* const target = pressed.value_or(nullptr); target != nullptr && target->Enabled) {
        target->MouseDown.Raise(target->Index(), Within(*target, mouse));
    }
}

void PointerMoved(Window& window, const Mouse& mouse)
{
    const bool rests = Rests(window, mouse);
    if (!rests || window.Highlighted() == nullptr) {
        Hover(window, mouse);
    }
}

void Hover(Window& window, const Mouse& mouse)
{
    if (!GetsPointer(window, mouse)) {
        return;
    }
    const EventScope scope;
    Visual* const target = window.Pressed().value_or(ControlAt(window, mouse.X, mouse.Y));
    LeaveHighlight(window, target);
    if (target == nullptr) {
        window.Form_MouseMove(mouse);
    } else if (target->Enabled) {
        target->MouseMove.Raise(target->Index(), Within(*target, mouse));
    }
}

void PointerReleased(Window& window, const Mouse& mouse)
{
    if (!window.Pressed()) {
        return;
    }
    Visual* const target = *window.Pressed();
    LetGo(window);
    if (!App.TakesInput(window)) {
        return;
    }
    const EventScope scope;
    const bool left = ControlAt(window, mouse.X, mouse.Y) != target;
    if (target != nullptr && target->Enabled) {
        target->MouseUp.Raise(target->Index(), Within(*target, mouse));
        if (mouse.Button == kLeftButton && App.TakesInput(window) && target->Reachable() &&
            target->Covers(mouse.X, mouse.Y)) {
            target->RaiseClick();
        }
    }
    // The pointer has slid onto something else: without this movement, the next press would act on
    // what it no longer points at.
    if (left) {
        Hover(window, Mouse{0, mouse.Shift, mouse.X, mouse.Y});
    }
}

void LetGo(Window& window)
{
    Routing::Of(window).Pressed.reset();
}

void TakePressFrom(Window& window)
{
    Visual* const target = window.Pressed().value_or(nullptr);
    LetGo(window);
    if (target != nullptr && target->Enabled) {
        target->MouseUp.Raise(target->Index(), Within(*target, MiddleOf(*target, kLeftButton)));
    }
}

void FingerPressed(Window& window, const Mouse& mouse)
{
    Mouse coming = mouse;
    coming.Button = 0;
    const std::vector<Picture> before = PicturesOf(window);
    Rests(window, mouse);
    Hover(window, coming);
    if (before == PicturesOf(window)) {
        PointerPressed(window, mouse);
    }
}

void Press(Visual& visual)
{
    const EventScope scope;
    Window& window = visual.Owner();
    PointerMoved(window, MiddleOf(visual, 0));
    PointerPressed(window, MiddleOf(visual, kLeftButton));
    PointerReleased(window, MiddleOf(visual, kLeftButton));
}

}  // namespace malvone

// Routing.h: the way of pointer and highlight into what a window remembers of them. For those who
// route them alone: PointerRouting.cpp and Highlight.cpp.
#pragma once

#include "ui/layer/Window.h"

namespace malvone {

struct Routing
{
    static auto& Of(Window& window) { return window.routed_; }

    // Moves the highlight, null takes it away; the binding hears of both controls.
    static void SetHighlight(Window& window, Visual* control);
};

}  // namespace malvone

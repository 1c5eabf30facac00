// Routing.h: access to what a window remembers of pointer and highlight, for PointerRouting.cpp and
// Highlight.cpp alone.
#pragma once

#include "ui/layer/Window.h"

namespace malvone {

struct Routing
{
    static auto& Of(Window& window) { return window.routed_; }

    // Moves the highlight, or takes it away if null; the binding is told of both controls.
    static void SetHighlight(Window& window, Visual* control);
};

}  // namespace malvone

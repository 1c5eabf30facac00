// Backdrop.h: what sets the window behind the game apart from all others.
#pragma once

#include <qwindowdefs.h>

#include "ui/layer/Window.h"

namespace malvone::qt {

bool IsBackdrop(const Window& window);

// Keeps a window off the task bar and out of the overview of workspaces; call before it is shown.
// A window type that does so by itself would put it above the game, or below other programs, on
// some window manager.
void KeepOffTaskBar(WId window);

// The backdrop has got another size: the model and its picture follow.
void FitBackdrop(Window& window, int width, int height);

}  // namespace malvone::qt

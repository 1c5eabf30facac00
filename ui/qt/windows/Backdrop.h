// Backdrop.h: what sets the window behind the game apart from all others.
#pragma once

#include "ui/layer/Window.h"

namespace malvone::qt {

bool IsBackdrop(const Window& window);

// The backdrop has got another size: the model and its picture follow.
void FitBackdrop(Window& window, int width, int height);

}  // namespace malvone::qt

// Backdrop.h: the backdrop's size in the model.
#pragma once

#include "ui/layer/Window.h"

namespace malvone::qt {

// The backdrop has got another size: the model and its picture follow.
void FitBackdrop(Window& window, int width, int height);

}  // namespace malvone::qt

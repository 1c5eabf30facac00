// Backdrop.cpp: keeps the backdrop's size in the model.
#include "ui/qt/windows/Backdrop.h"

#include "ui/qt/drawing/Conversions.h"
#include "ui/windows/FrmHintergrund.h"

namespace malvone::qt {

void FitBackdrop(Window& window, int width, int height)
{
    window.Move(0, 0, ToTwips(width), ToTwips(height));
    static_cast<FrmHintergrund&>(window).Image1.Move(0, 0, window.Width, window.Height);
}

}  // namespace malvone::qt

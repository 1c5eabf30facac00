// Painting.h: how windows and controls look on the screen.
#pragma once

#include <QRectF>

#include "ui/layer/Controls.h"

class QPainter;
class QRegion;

namespace malvone {
class Window;
}

namespace malvone::qt {

class PictureStore;

// A control's place in pixels of the design, from the corner of the client area.
QRectF PlaceOf(const Visual& visual);

// Paints what lies in `dirty`, given in pixels of the design from the corner of the client area,
// where the painter has its origin. `room` is all that can be seen, which may be more than that.
void PaintWindow(QPainter& painter, const Window& window, PictureStore& pictures,
                 const QRegion& dirty, const QRectF& room);

}  // namespace malvone::qt

// HandCursor.h: the pointing hand over what can be clicked.
#pragma once

#include <QCursor>

namespace malvone::qt {

// Rendered once for each ratio of the screen's pixels to Qt's.
QCursor HandCursor(double ratio);

}  // namespace malvone::qt

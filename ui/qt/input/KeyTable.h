// KeyTable.h: turns Qt's keys into the layer's, and passes them on.
#pragma once

#include <QtGlobal>
#include <qnamespace.h>

#include "ui/layer/Keys.h"

class QKeyEvent;

namespace malvone::qt {

// Code 0 is a key that the game has no use for, such as an umlaut.
Key ToKey(const QKeyEvent& event);

// Passes a key that was pressed in a window to the layer. False if nobody took it.
bool RouteKey(Window& window, const QKeyEvent& event);

std::int16_t ToShift(Qt::KeyboardModifiers modifiers);

}  // namespace malvone::qt

// KeyTable.h: Qt's keys in the codes that the game knows.
#pragma once

#include <QtGlobal>
#include <qnamespace.h>

#include "ui/layer/Keys.h"

class QKeyEvent;

namespace malvone::qt {

// Code 0 stands for a key that the game has no use for, such as an umlaut.
Key ToKey(const QKeyEvent& event);

std::int16_t ToShift(Qt::KeyboardModifiers modifiers);

}  // namespace malvone::qt

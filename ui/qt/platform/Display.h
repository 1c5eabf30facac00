// Display.h: whether there is a desktop to show the game on, and whether the game fits on it.
#pragma once

#include <qlogging.h>

namespace malvone::qt {

constexpr int kNoDisplay = 1;  // the program's status where there is no display to play on

// Why no window can be opened, in the player's words; null if nothing stands in the way.
const char* WhyNoDisplay();
// Says so on standard error, in one line.
void TellNoDisplay(const char* why);

// Handles what Qt says while the application object is made: where Qt gives up, the player reads
// one sentence instead of many, and the program ends without a core dump.
void OnQtMessage(QtMsgType type, const QMessageLogContext& context, const QString& text);

// Chooses X11, where windows can be placed exactly, also on Wayland if XWayland runs. Call before
// the application object is made. Leaves the player's own choice alone.
void PreferX11();

// The lowest ratio of screen pixels to Qt's pixels of all screens. Qt paints wrongly below 1. Needs
// an application object.
double LowestRatio();

// Whether programs may place their windows on this desktop. Needs an application object.
bool WindowsCanBePlaced();

// Enlarges everything by a factor once the next application object is made.
void RaiseScale(double factor);

}  // namespace malvone::qt

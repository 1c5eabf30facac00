// Display.h: whether there is a desktop to show the game on, and whether the game fits on it.
#pragma once

namespace malvone::qt {

// Whether a window can be opened. Qt would abort without a display.
bool DisplayReachable();

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

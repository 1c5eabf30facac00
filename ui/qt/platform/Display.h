// Display.h: whether there is a desktop to show the game on, and whether the game fits on it.
#pragma once

namespace malvone::qt {

// Whether a window can be opened. Without a display Qt would abort.
bool DisplayReachable();

// On X11 windows can be placed exactly; XWayland brings it to Wayland. Has an effect before the
// application object is made, and only where the player has not chosen.
void PreferX11();

// The pixels of the screen to one of Qt's, on the screen where they are fewest. Qt paints wrongly
// where it is below 1. Needs an application object.
double LowestRatio();

// Whether programs may place their windows on this desktop. Needs an application object.
bool WindowsCanBePlaced();

// Makes everything larger by a factor, for the next application object.
void RaiseScale(double factor);

}  // namespace malvone::qt

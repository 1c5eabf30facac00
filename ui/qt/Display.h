// Display.h: whether there is a desktop to show the game on, and whether the game fits on it.
#pragma once

namespace malvone::qt {

// Whether a window can be opened. Without a display Qt would abort.
bool DisplayReachable();

// On X11 windows can be placed exactly; XWayland brings it to Wayland. Has an effect before the
// application object is made, and only where the player has not chosen.
void PreferX11();

// How much smaller everything has to be so that the main window with menu and frame fits on the
// primary screen; 1 where it fits as it is. Needs an application object.
double FittingScale();

// Makes everything smaller by a factor, for the next application object.
void ReduceScale(double factor);

}  // namespace malvone::qt

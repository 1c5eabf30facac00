// WindowManager.h: what the window manager of an X11 desktop is like, and what it is asked for.
#pragma once

#include <qwindowdefs.h>

namespace malvone::qt {

// What becomes of the backdrop. The game has to be seen in any case.
enum class BackdropManner {
    FullScreen,   // the manager shows other windows beside or above a full-screen one
    ScreenSized,  // a plain window of the screen's size, since nothing else is known to go well
    // By design (kacheln-ohne-hintergrund): one would expect a backdrop everywhere. Where windows
    // are tiled, it would take room from the game, or hide it. Test: display.qt.managers_e2e
    None,
};

BackdropManner MannerOfBackdrop();

// Whether the player has all windows out of the way at present.
bool ManagerShowsDesktop();
// Whether a window that was shown is off the screen. Known before the window itself is told.
bool ManagerHides(WId window);

// Keeps a window off the task bar and out of the overview of workspaces; call before each show.
// A window type that does so by itself would put it above the game, or below other programs, on
// some window manager.
void KeepOffTaskBar(WId window);

// Makes a window the active one because the player has said so. What a program wishes for itself,
// some window managers refuse while the player works elsewhere.
void ActivateForPlayer(WId window);

}  // namespace malvone::qt

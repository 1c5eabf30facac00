// WindowManager.h: what an X11 window manager is like, and what it is asked to do.
#pragma once

#include <qwindowdefs.h>

namespace malvone::qt {

// How the backdrop is shown so that the game is seen in any case.
enum class BackdropManner {
    FullScreen,   // the manager shows other windows above a full-screen one
    ScreenSized,  // a plain window of the screen's size
    // By design (kacheln-ohne-hintergrund): one would expect a backdrop everywhere. Where windows
    // are tiled, and on Wayland itself, it would take room from the game, or hide it.
    // Test: display.qt.managers_e2e
    None,
};

BackdropManner MannerOfBackdrop();

// Whether the player has put all windows out of the way for now.
bool ManagerShowsDesktop();
// Whether a window that was shown is off the screen. Known before the window itself is told.
bool ManagerHides(WId window);

// Keeps a window out of the task bar and the overview of workspaces; call before each show. Window
// types that imply this put the window above the game or below other programs under some managers.
void KeepOffTaskBar(WId window);

// Activates a window on behalf of the player. Some window managers refuse what a program asks for
// itself while the player works elsewhere.
void ActivateForPlayer(WId window);

}  // namespace malvone::qt

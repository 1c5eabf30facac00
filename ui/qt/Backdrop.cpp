// Backdrop.cpp: hints to the window manager, and the size of the backdrop.
#include "ui/qt/Backdrop.h"

#include <string_view>

#include "ui/qt/Scale.h"
#include "ui/qt/X11.h"
#include "ui/windows/FrmHintergrund.h"

namespace malvone::qt {
namespace {

#ifdef MALVONE_XCB
xcb_intern_atom_cookie_t Ask(xcb_connection_t* connection, std::string_view name)
{
    return xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
}

xcb_atom_t Atom(xcb_connection_t* connection, xcb_intern_atom_cookie_t cookie)
{
    const Answer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}
#endif

}  // namespace

bool IsBackdrop(const Window& window)
{
    return window.Name() == frmHintergrund.Name();
}

void KeepOffTaskBar(WId window)
{
#ifdef MALVONE_XCB
    xcb_connection_t* const connection = X11Connection();
    if (connection == nullptr) {
        return;
    }
    const auto state = Ask(connection, "_NET_WM_STATE");
    const auto taskBar = Ask(connection, "_NET_WM_STATE_SKIP_TASKBAR");
    const auto pager = Ask(connection, "_NET_WM_STATE_SKIP_PAGER");
    const xcb_atom_t hints[] = {Atom(connection, taskBar), Atom(connection, pager)};
    xcb_change_property(connection, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window),
                        Atom(connection, state), XCB_ATOM_ATOM, 32, 2, hints);
#else
    static_cast<void>(window);
#endif
}

void FitBackdrop(Window& window, int width, int height)
{
    window.Move(0, 0, ToTwips(width), ToTwips(height));
    static_cast<FrmHintergrund&>(window).Image1.Move(0, 0, window.Width, window.Height);
}

}  // namespace malvone::qt

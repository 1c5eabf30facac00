// WindowManager.cpp: finds out which window manager runs, and talks to it.
#include "ui/qt/windows/WindowManager.h"

#include "ui/qt/platform/Display.h"

#ifdef MALVONE_XCB
#include <QGuiApplication>
#include <algorithm>
#include <cstring>
#include <iterator>

#include "ui/qt/platform/X11.h"
#endif

namespace malvone::qt {

#ifdef MALVONE_XCB

namespace {

// Parts of the names that managers give themselves. Found by trying.
constexpr std::string_view kShowOthersAboveFullScreen[] = {
    "Openbox", "Xfwm4", "Metacity", "Mutter", "GNOME Shell",
    "Marco",   "KWin",  "IceWM",    "JWM",    "FVWM",
};
constexpr std::string_view kTile[] = {"i3", "wlroots wm", "bspwm", "dwm", "awesome"};

// Qt's own connection; null on another platform, where the interface may exist without one.
xcb_connection_t* Connection()
{
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr && QGuiApplication::platformName() == QLatin1String("xcb")
               ? x11->connection()
               : nullptr;
}

// The bytes of a property, empty where there is none.
std::string Property(xcb_connection_t* connection, xcb_window_t window, std::string_view name)
{
    constexpr std::uint32_t kLongs = 64;
    const x11::Answer<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(connection,
                               xcb_get_property(connection, 0, window, x11::Atom(connection, name),
                                                XCB_GET_PROPERTY_TYPE_ANY, 0, kLongs),
                               nullptr));
    if (!reply) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

std::string ManagerName(xcb_connection_t* connection)
{
    const std::string window =
        Property(connection, x11::Root(connection), "_NET_SUPPORTING_WM_CHECK");
    xcb_window_t id = 0;
    if (window.size() < sizeof id) {
        return {};
    }
    std::memcpy(&id, window.data(), sizeof id);
    return Property(connection, id, "_NET_WM_NAME");
}

template<typename Words>
bool HasOneOf(std::string_view name, const Words& words)
{
    return std::any_of(std::begin(words), std::end(words), [name](std::string_view word) {
        return name.find(word) != std::string_view::npos;
    });
}

BackdropManner AskedFor()
{
    // On Wayland a full-screen window lies above all others, or beside none.
    if (!WindowsCanBePlaced()) {
        return BackdropManner::None;
    }
    xcb_connection_t* const connection = Connection();
    const std::string name = connection != nullptr ? ManagerName(connection) : std::string();
    if (connection == nullptr || HasOneOf(name, kShowOthersAboveFullScreen)) {
        return BackdropManner::FullScreen;
    }
    return HasOneOf(name, kTile) ? BackdropManner::None : BackdropManner::ScreenSized;
}

}  // namespace

BackdropManner MannerOfBackdrop()
{
    static const BackdropManner manner = AskedFor();
    return manner;
}

bool ManagerShowsDesktop()
{
    xcb_connection_t* const connection = Connection();
    const std::string shown =
        connection != nullptr ? Property(connection, x11::Root(connection), "_NET_SHOWING_DESKTOP")
                              : std::string();
    return !shown.empty() && shown.front() != 0;
}

bool ManagerHides(WId window)
{
    xcb_connection_t* const connection = Connection();
    if (connection == nullptr) {
        return false;
    }
    const x11::Answer<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
        connection, xcb_get_window_attributes(connection, static_cast<xcb_window_t>(window)),
        nullptr));
    return reply && reply->map_state != XCB_MAP_STATE_VIEWABLE;
}

void KeepOffTaskBar(WId window)
{
    if (xcb_connection_t* const connection = Connection()) {
        const xcb_atom_t hints[] = {x11::Atom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                                    x11::Atom(connection, "_NET_WM_STATE_SKIP_PAGER")};
        xcb_change_property(connection, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window),
                            x11::Atom(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32, 2, hints);
    }
}

void ActivateForPlayer(WId window)
{
    if (xcb_connection_t* const connection = Connection()) {
        constexpr std::uint32_t kFromThePlayer = 2;
        xcb_client_message_event_t request{};
        request.response_type = XCB_CLIENT_MESSAGE;
        request.format = 32;
        request.window = static_cast<xcb_window_t>(window);
        request.type = x11::Atom(connection, "_NET_ACTIVE_WINDOW");
        request.data.data32[0] = kFromThePlayer;
        xcb_send_event(connection, 0, x11::Root(connection),
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char*>(&request));
        xcb_flush(connection);
    }
}

#else

BackdropManner MannerOfBackdrop()
{
    return WindowsCanBePlaced() ? BackdropManner::FullScreen : BackdropManner::None;
}

bool ManagerShowsDesktop()
{
    return false;
}

bool ManagerHides(WId /*window*/)
{
    return false;
}

void KeepOffTaskBar(WId /*window*/) {}

void ActivateForPlayer(WId /*window*/) {}

#endif

}  // namespace malvone::qt

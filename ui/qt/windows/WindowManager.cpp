// WindowManager.cpp: finds out which window manager runs, and talks to it.
#include "ui/qt/windows/WindowManager.h"

#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>

#include "ui/qt/platform/Display.h"

#ifdef MALVONE_XCB
#include <xcb/xcb.h>
#endif

namespace malvone::qt {
namespace {

struct Manager
{
    std::string_view Word;  // a part of the name that it gives itself
    BackdropManner Manner;
};

// Found by trying. For any other manager the backdrop is a plain window.
constexpr Manager kManagers[] = {
    {"Openbox", BackdropManner::FullScreen},
    {"Xfwm4", BackdropManner::FullScreen},
    {"Metacity", BackdropManner::FullScreen},
    {"Mutter", BackdropManner::FullScreen},
    {"GNOME Shell", BackdropManner::FullScreen},
    {"Marco", BackdropManner::FullScreen},
    {"KWin", BackdropManner::FullScreen},
    {"IceWM", BackdropManner::FullScreen},
    {"JWM", BackdropManner::FullScreen},
    {"FVWM", BackdropManner::FullScreen},
    {"i3", BackdropManner::None},
    {"wlroots wm", BackdropManner::None},
    {"bspwm", BackdropManner::None},
    {"dwm", BackdropManner::None},
    {"awesome", BackdropManner::None},
};

#ifdef MALVONE_XCB

struct Freed
{
    void operator()(void* memory) const { std::free(memory); }
};
// A reply of the server; null on an error.
template<typename Reply>
using Answer = std::unique_ptr<Reply, Freed>;

// Qt's own connection; null on another platform.
xcb_connection_t* Connection()
{
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // On other platforms the interface may exist without a connection.
    return x11 != nullptr && QGuiApplication::platformName() == QLatin1String("xcb")
               ? x11->connection()
               : nullptr;
}

xcb_atom_t Atom(xcb_connection_t* connection, std::string_view name)
{
    const Answer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t Root(xcb_connection_t* connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

// The bytes of a property, empty where there is none.
std::string Property(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t name)
{
    constexpr std::uint32_t kLongs = 64;
    const Answer<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection,
        xcb_get_property(connection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, kLongs),
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
        Property(connection, Root(connection), Atom(connection, "_NET_SUPPORTING_WM_CHECK"));
    if (window.size() < sizeof(xcb_window_t)) {
        return {};
    }
    xcb_window_t id = 0;
    std::copy_n(window.begin(), sizeof id, reinterpret_cast<char*>(&id));
    return Property(connection, id, Atom(connection, "_NET_WM_NAME"));
}

#endif

BackdropManner AskedFor()
{
    // A full-screen window lies above all others there, or beside none.
    if (!WindowsCanBePlaced()) {
        return BackdropManner::None;
    }
#ifdef MALVONE_XCB
    xcb_connection_t* const connection = Connection();
    if (connection == nullptr) {
        return BackdropManner::FullScreen;
    }
    const std::string name = ManagerName(connection);
    const auto* const found =
        std::find_if(std::begin(kManagers), std::end(kManagers), [&name](const Manager& manager) {
            return name.find(manager.Word) != std::string::npos;
        });
    return found == std::end(kManagers) ? BackdropManner::ScreenSized : found->Manner;
#else
    return BackdropManner::FullScreen;
#endif
}

}  // namespace

BackdropManner MannerOfBackdrop()
{
    static const BackdropManner manner = AskedFor();
    return manner;
}

bool ManagerShowsDesktop()
{
#ifdef MALVONE_XCB
    if (xcb_connection_t* const connection = Connection()) {
        const std::string shown =
            Property(connection, Root(connection), Atom(connection, "_NET_SHOWING_DESKTOP"));
        return !shown.empty() && shown.front() != 0;
    }
#endif
    return false;
}

bool ManagerHides(WId window)
{
#ifdef MALVONE_XCB
    if (xcb_connection_t* const connection = Connection()) {
        const Answer<xcb_get_window_attributes_reply_t> reply(xcb_get_window_attributes_reply(
            connection, xcb_get_window_attributes(connection, static_cast<xcb_window_t>(window)),
            nullptr));
        return reply && reply->map_state != XCB_MAP_STATE_VIEWABLE;
    }
#else
    static_cast<void>(window);
#endif
    return false;
}

void KeepOffTaskBar(WId window)
{
#ifdef MALVONE_XCB
    xcb_connection_t* const connection = Connection();
    if (connection == nullptr) {
        return;
    }
    const xcb_atom_t hints[] = {Atom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                                Atom(connection, "_NET_WM_STATE_SKIP_PAGER")};
    xcb_change_property(connection, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window),
                        Atom(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32, 2, hints);
#else
    static_cast<void>(window);
#endif
}

void ActivateForPlayer(WId window)
{
#ifdef MALVONE_XCB
    xcb_connection_t* const connection = Connection();
    if (connection == nullptr) {
        return;
    }
    constexpr std::uint32_t kFromThePlayer = 2;
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = static_cast<xcb_window_t>(window);
    request.type = Atom(connection, "_NET_ACTIVE_WINDOW");
    request.data.data32[0] = kFromThePlayer;
    xcb_send_event(connection, 0, Root(connection),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&request));
    xcb_flush(connection);
#else
    static_cast<void>(window);
#endif
}

}  // namespace malvone::qt

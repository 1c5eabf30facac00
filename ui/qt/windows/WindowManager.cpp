// WindowManager.cpp: asks the X server who manages windows, and sets hints.
#include "ui/qt/windows/WindowManager.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

#include "ui/qt/platform/X11.h"

namespace malvone::qt {
namespace {

struct Manager
{
    std::string_view Word;  // a part of the name by which it introduces itself
    BackdropManner Manner;
};

// Found by trying. A manager that is missing here gets the plain window.
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
    const auto check = AskForAtom(connection, "_NET_SUPPORTING_WM_CHECK");
    const auto name = AskForAtom(connection, "_NET_WM_NAME");
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const std::string window = Property(connection, root, TakeAtom(connection, check));
    const xcb_atom_t nameAtom = TakeAtom(connection, name);
    if (window.size() < sizeof(xcb_window_t)) {
        return {};
    }
    xcb_window_t id = 0;
    std::copy_n(window.begin(), sizeof id, reinterpret_cast<char*>(&id));
    return Property(connection, id, nameAtom);
}

#endif

BackdropManner AskedFor()
{
#ifdef MALVONE_XCB
    xcb_connection_t* const connection = X11Connection();
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

void KeepOffTaskBar(WId window)
{
#ifdef MALVONE_XCB
    xcb_connection_t* const connection = X11Connection();
    if (connection == nullptr) {
        return;
    }
    const auto state = AskForAtom(connection, "_NET_WM_STATE");
    const auto taskBar = AskForAtom(connection, "_NET_WM_STATE_SKIP_TASKBAR");
    const auto pager = AskForAtom(connection, "_NET_WM_STATE_SKIP_PAGER");
    const xcb_atom_t hints[] = {TakeAtom(connection, taskBar), TakeAtom(connection, pager)};
    xcb_change_property(connection, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window),
                        TakeAtom(connection, state), XCB_ATOM_ATOM, 32, 2, hints);
#else
    static_cast<void>(window);
#endif
}

}  // namespace malvone::qt

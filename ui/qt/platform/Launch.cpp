// Launch.cpp: speaks to launchers of X11 desktops.
#include "ui/qt/platform/Launch.h"

#ifdef MALVONE_XCB
#include "ui/qt/platform/X11.h"
#endif

namespace malvone::qt {

#ifdef MALVONE_XCB

namespace {

// Sends a text to all who listen to the root window, in parts of 20 bytes; the last one holds the
// zero at its end.
void Broadcast(xcb_connection_t* connection, const std::string& text)
{
    const xcb_window_t root = x11::Root(connection);
    xcb_client_message_event_t part{};
    part.response_type = XCB_CLIENT_MESSAGE;
    part.format = 8;
    part.type = x11::Atom(connection, "_NET_STARTUP_INFO_BEGIN");
    part.window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, part.window, root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    for (std::size_t i = 0; i <= text.size(); i += sizeof part.data) {
        part.data = {};
        text.copy(reinterpret_cast<char*>(part.data.data8), sizeof part.data, i);
        xcb_send_event(connection, 0, root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&part));
        part.type = x11::Atom(connection, "_NET_STARTUP_INFO");
    }
    xcb_flush(connection);
}

}  // namespace

void EndLaunch()
{
    const char* const launch = std::getenv("DESKTOP_STARTUP_ID");
    if (launch == nullptr) {
        return;
    }
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) == 0) {
        Broadcast(connection, std::string("remove: ID=") + launch);
    }
    xcb_disconnect(connection);
}

#else

void EndLaunch() {}

#endif

}  // namespace malvone::qt

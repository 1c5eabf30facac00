// X11.cpp: asks Qt for its connection.
#include "ui/qt/platform/X11.h"

#ifdef MALVONE_XCB
#include <QGuiApplication>

namespace malvone::qt {

xcb_connection_t* X11Connection()
{
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Other platforms answer too, without a connection.
    return x11 != nullptr && QGuiApplication::platformName() == QLatin1String("xcb")
               ? x11->connection()
               : nullptr;
}

xcb_intern_atom_cookie_t AskForAtom(xcb_connection_t* connection, std::string_view name)
{
    return xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
}

xcb_atom_t TakeAtom(xcb_connection_t* connection, xcb_intern_atom_cookie_t cookie)
{
    const Answer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

}  // namespace malvone::qt
#endif

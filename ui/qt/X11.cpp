// X11.cpp: asks Qt for its connection.
#include "ui/qt/X11.h"

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

}  // namespace malvone::qt
#endif

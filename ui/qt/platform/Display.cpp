// Display.cpp: looks at the environment and at the screen before the first window.
#include "ui/qt/platform/Display.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cstdlib>
#include <string>

#ifdef MALVONE_XCB
#include <xcb/xcb.h>
#endif

namespace malvone::qt {
namespace {

constexpr const char* kPlatform = "QT_QPA_PLATFORM";
constexpr const char* kScale = "QT_SCALE_FACTOR";

std::string Environment(const char* name)
{
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

bool AskX11()
{
    if (Environment("DISPLAY").empty()) {
        return false;
    }
#ifdef MALVONE_XCB
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    const bool reached = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return reached;
#else
    return true;
#endif
}

bool X11Reachable()
{
    static const bool reached = AskX11();
    return reached;
}

bool WaylandReachable()
{
    std::string path = Environment("WAYLAND_DISPLAY");
    if (path.empty()) {
        return false;
    }
    if (path.front() != '/') {
        path = Environment("XDG_RUNTIME_DIR") + "/" + path;
    }
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path) {
        return false;
    }
    std::copy(path.begin(), path.end(), std::begin(address.sun_path));
    const int channel = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool reached = channel >= 0 && connect(channel, reinterpret_cast<sockaddr*>(&address),
                                                 sizeof address) == 0;
    if (channel >= 0) {
        close(channel);
    }
    return reached;
}

}  // namespace

bool DisplayReachable()
{
    return !Environment(kPlatform).empty() || X11Reachable() || WaylandReachable();
}

void PreferX11()
{
    // Naming both would make Qt print a warning when the first one fails.
    if (Environment(kPlatform).empty()) {
        qputenv(kPlatform, X11Reachable() ? "xcb" : "wayland");
    }
}

double LowestRatio()
{
    double lowest = QGuiApplication::primaryScreen()->devicePixelRatio();
    for (const QScreen* const screen : QGuiApplication::screens()) {
        lowest = std::min(lowest, screen->devicePixelRatio());
    }
    return lowest;
}

bool WindowsCanBePlaced()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

void RaiseScale(double factor)
{
    const double chosen = qEnvironmentVariable(kScale).toDouble();
    qputenv(kScale, QByteArray::number((chosen > 0 ? chosen : 1.0) * factor, 'f', 3));
}

}  // namespace malvone::qt

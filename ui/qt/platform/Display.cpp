// Display.cpp: looks at the environment and at the screen before the first window.
#include "ui/qt/platform/Display.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QScreen>
#include <QString>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>

#ifdef MALVONE_XCB
#include <xcb/xcb.h>
#endif

namespace malvone::qt {
namespace {

constexpr const char* kPlatform = "QT_QPA_PLATFORM";
constexpr const char* kScale = "QT_SCALE_FACTOR";

enum class Reached { No, WithFewColours, Yes };

Reached AskX11()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY")) {
        return Reached::No;
    }
#ifdef MALVONE_XCB
    constexpr int kLeastBits = 15;  // fewer leave Qt's windows black
    Reached reached = Reached::No;
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) == 0) {
        const auto* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
        reached = screen->root_depth < kLeastBits ? Reached::WithFewColours : Reached::Yes;
    }
    xcb_disconnect(connection);
    return reached;
#else
    return Reached::Yes;
#endif
}

Reached X11()
{
    static const Reached reached = AskX11();
    return reached;
}

bool WaylandReachable()
{
    std::string path = qgetenv("WAYLAND_DISPLAY").toStdString();
    if (path.empty()) {
        return false;
    }
    if (path.front() != '/') {
        path = qgetenv("XDG_RUNTIME_DIR").toStdString() + "/" + path;
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

const char* WhyNoDisplay()
{
    const QByteArray chosen = qgetenv(kPlatform);
    const bool any = chosen.isEmpty();
    if ((!any && chosen != "xcb") || X11() == Reached::Yes || (any && WaylandReachable())) {
        return nullptr;
    }
    return X11() == Reached::WithFewColours
               ? "Der Bildschirm zeigt zu wenige Farben; das Spiel braucht mindestens 32768."
               : "Es gibt keinen Bildschirm für das Spiel: "
                 "Weder DISPLAY noch WAYLAND_DISPLAY führt zu einem.";
}

void TellNoDisplay(const char* why)
{
    std::fprintf(stderr, "%s: %s\n", program_invocation_short_name, why);
}

void OnQtMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg) {
        TellNoDisplay("Qt kann auf diesem Bildschirm keine Fenster öffnen. "
                      "Für Wayland braucht es das Paket qt6-wayland.");
        std::_Exit(kNoDisplay);
    }
    if (!QLatin1StringView(context.category).startsWith(QLatin1StringView("qt.qpa."))) {
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
    }
}

void PreferX11()
{
    // Naming both would make Qt print a warning when the first one fails.
    if (qEnvironmentVariableIsEmpty(kPlatform)) {
        qputenv(kPlatform, X11() == Reached::Yes ? "xcb" : "wayland");
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

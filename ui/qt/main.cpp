// main.cpp: starts the game on the desktop.
#include "game/Main.h"

#include <fontconfig/fontconfig.h>

#include <QApplication>
#include <csignal>
#include <filesystem>
#include <future>
#include <optional>

#include "storage/Datenordner.h"
#include "ui/layer/App.h"
#include "ui/qt/QtBinding.h"
#include "ui/qt/platform/Display.h"
#include "ui/qt/platform/Launch.h"
#include "ui/qt/platform/QtPlatform.h"
#include "ui/qt/platform/SingleGame.h"
#include "ui/qt/windows/MenuBar.h"
#include "ui/sound/Sound.h"

namespace malvone::qt {
namespace {

// Qt paints wrongly on a scale below 1, so it is started again with a larger one.
void StartQt(std::optional<QApplication>& application, int& argc, char** argv)
{
    PreferX11();
    // The menu belongs to the window; even asking for a menu elsewhere would start the session bus.
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QApplication::setApplicationName(QStringLiteral("malvone"));
    QApplication::setDesktopFileName(QStringLiteral("malvone"));
    const QtMessageHandler before = qInstallMessageHandler(OnQtMessage);
    {
        // Meanwhile the fonts are read, if there is a thread to be had; Qt would do it later.
        const auto fonts = std::async(FcInit);
        application.emplace(argc, argv);
    }
    qInstallMessageHandler(before);
    const double ratio = LowestRatio();
    if (ratio < 1) {
        application.reset();
        RaiseScale(1 / ratio);
        application.emplace(argc, argv);
    }
    UseMenuStyle();
}

int Play(const std::optional<std::filesystem::path>& root, const SingleGame& single, Sound& sound)
{
    QtPlatform platform(root, ProgramFolder(), sound);
    QtBinding binding;
    single.Listen([&binding] { binding.Windows().ComeForward(); });
    App.Begin(binding, platform);
    {
        const EventScope scope;
        Main();
    }
    const int status = App.Ended() ? 0 : QApplication::exec();
    App.Finish();
    return status;
}

int Run(int argc, char** argv)
{
    if (const char* const why = WhyNoDisplay()) {
        TellNoDisplay(why);
        return kNoDisplay;
    }
    const std::optional<std::filesystem::path> root = DefaultDataRoot();
    SingleGame single(root.value_or("") / kDatenOrdnerName);
    // By design (ein-spiel-je-ordner): one would expect a second game. The first one comes to the
    // front instead. Test: display.qt.windows_e2e
    if (root && !single.MayPlay()) {
        EndLaunch();
        return 0;
    }
    Sound sound;
    sound.Prepare();  // while Qt starts
    std::optional<QApplication> application;
    StartQt(application, argc, argv);
    const int status = Play(root, single, sound);
    sound.Finish();
    return status;
}

}  // namespace
}  // namespace malvone::qt

int main(int argc, char** argv)
{
    std::signal(SIGXFSZ, SIG_IGN);  // writing past a limit fails with an error instead
    return malvone::qt::Run(argc, argv);
}

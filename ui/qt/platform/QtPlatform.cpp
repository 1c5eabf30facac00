// QtPlatform.cpp: passes waves to the sound player and documents to the desktop.
#include "ui/qt/platform/QtPlatform.h"

#include <QProcess>
#include <QStandardPaths>
#include <utility>

#include "ui/sound/Sound.h"

namespace malvone::qt {

QtPlatform::QtPlatform(std::optional<std::filesystem::path> root,
                       std::filesystem::path programFolder, Sound& sound)
    : FilePlatform(std::move(root), std::move(programFolder)), sound_(sound)
{}

void QtPlatform::sndPlaySoundA(const std::string& path)
{
    const std::optional<std::filesystem::path> file = Translate(path);
    sound_.Play(file ? file->string() : std::string());
}

std::int32_t QtPlatform::waveOutGetNumDevs()
{
    return sound_.DeviceCount();
}

// If no viewer can be started, nothing happens, and what the launcher says is discarded.
void QtPlatform::ShellExecuteA(const std::string& path)
{
    const std::optional<std::filesystem::path> file = Translate(path);
    const QString launcher = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (!file || launcher.isEmpty()) {
        return;
    }
    QProcess process;
    process.setProgram(launcher);
    process.setArguments({QString::fromStdString(file->string())});
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
}

std::filesystem::path ProgramFolder()
{
    std::error_code ignored;
    const std::filesystem::path built =
        std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path();
    const std::filesystem::path installed = (built / MALVONE_DATADIR).lexically_normal();
    return std::filesystem::is_directory(installed, ignored) ? installed : built;
}

}  // namespace malvone::qt

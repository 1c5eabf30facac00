// QtPlatform.cpp: hands waves to the player and documents to the desktop.
#include "ui/qt/QtPlatform.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>
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

void QtPlatform::ShellExecuteA(const std::string& path)
{
    if (const std::optional<std::filesystem::path> file = Translate(path)) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(file->string())));
    }
}

std::filesystem::path ProgramFolder()
{
    std::error_code ignored;
    std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe", ignored);
    folder = folder.parent_path();
    return std::filesystem::exists(folder / "TADA.WAV", ignored)
               ? folder
               : std::filesystem::path(MALVONE_DATADIR);
}

}  // namespace malvone::qt

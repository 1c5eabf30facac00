// QtPlatform.h: the services of a Linux desktop: files, sound and documents.
#pragma once

#include <filesystem>
#include <optional>

#include "platform/Files.h"

namespace malvone {
class Sound;
}

namespace malvone::qt {

class QtPlatform final : public FilePlatform
{
public:
    // The sound must outlive the platform.
    QtPlatform(std::optional<std::filesystem::path> root, std::filesystem::path programFolder,
               Sound& sound);

    void sndPlaySoundA(const std::string& path) override;
    std::int32_t waveOutGetNumDevs() override;
    void ShellExecuteA(const std::string& path) override;

private:
    Sound& sound_;
};

// The folder of sounds and manuals: the installed data folder, found from the executable's place,
// or the executable's own folder if that does not exist.
std::filesystem::path ProgramFolder();

}  // namespace malvone::qt

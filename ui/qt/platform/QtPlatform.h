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
    // The sound has to outlive the platform.
    QtPlatform(std::optional<std::filesystem::path> root, std::filesystem::path programFolder,
               Sound& sound);

    void sndPlaySoundA(const std::string& path) override;
    std::int32_t waveOutGetNumDevs() override;
    void ShellExecuteA(const std::string& path) override;

private:
    Sound& sound_;
};

// The folder of sounds and manuals: of an installed game the one that lies where the installation
// puts it, seen from the executable; of a built one the executable's own. No file has to be there.
std::filesystem::path ProgramFolder();

}  // namespace malvone::qt

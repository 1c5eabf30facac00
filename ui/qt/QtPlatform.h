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

// The folder of the executable if the sounds lie there, else the folder they are installed in.
std::filesystem::path ProgramFolder();

}  // namespace malvone::qt

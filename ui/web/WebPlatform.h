// WebPlatform.h: a browser's services. Files are entries of its storage with the same bytes, each
// written in one step; sounds and manuals lie beside the page. page.js decides what may be written.
#pragma once

#include "platform/Platform.h"
#include "ui/web/Page.h"

namespace malvone::web {

class WebPlatform final : public Platform
{
public:
    std::string GetWindowsDirectoryA() override
    {
        return Ask<bool>("storageAllowed") ? "C:\\WINDOWS" : "";
    }
    bool CreateDirectoryA(const std::string& path) override;
    std::int32_t OpenFileExist(const std::string& path) override;
    void DeleteFileA(const std::string& path) override { Ask("removeEntry", path); }
    ReadLines ReadTextLines(const std::string& path, std::size_t count) override;
    FileFault WriteTextLines(const std::string& path,
                             const std::vector<std::string>& lines) override;
    FileFault RenewTextLines(const std::string& path, std::size_t count,
                             const Renewal& renewal) override;
    void sndPlaySoundA(const std::string& path) override { Ask("sound", path); }
    void ShellExecuteA(const std::string& path) override { Ask("open", path); }
};

}  // namespace malvone::web

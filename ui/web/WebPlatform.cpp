// WebPlatform.cpp: paths as names of entries.
#include "ui/web/WebPlatform.h"

#include <chrono>
#include <optional>

#include "platform/TextLines.h"
#include "ui/web/Page.h"

namespace malvone::web {
namespace {

std::string FileName(const std::string& path)
{
    return path.substr(path.rfind('\\') + 1);
}

// A folder is an entry whose name ends with a backslash; a root is always there.
bool FolderOfExists(const std::string& path)
{
    const std::string folder = path.substr(0, path.rfind('\\') + 1);
    return folder == "C:\\" || folder == "\\" || folder == kProgramFolder || ReadEntry(folder);
}

}  // namespace

std::string WebPlatform::GetWindowsDirectoryA()
{
    return Ask("storageAllowed") != 0 ? "C:\\WINDOWS" : "";
}

bool WebPlatform::CreateDirectoryA(const std::string& path)
{
    return Over || WriteEntry(path + "\\", "") == FileFault::None;
}

std::int32_t WebPlatform::OpenFileExist(const std::string& path)
{
    if (!FolderOfExists(path)) {
        return kPathNotFound;
    }
    if (ReadEntry(path + "\\")) {
        return kAccessRefused;
    }
    return ReadEntry(path) ? kFileExists : kFileNotFound;
}

void WebPlatform::DeleteFileA(const std::string& path)
{
    if (!Over) {
        Tell("removeEntry", path);
    }
}

ReadLines WebPlatform::ReadTextLines(const std::string& path, std::size_t count)
{
    const std::optional<std::string> content = ReadEntry(path);
    if (!content) {
        return {FileFault::NotFound, {}};
    }
    ReadLines result;
    LineCollector collector(count, result.Lines);
    collector.Take(*content);
    collector.EndOfFile();
    result.Fault = collector.Complete() ? FileFault::None : FileFault::PastEnd;
    return result;
}

FileFault WebPlatform::WriteTextLines(const std::string& path,
                                      const std::vector<std::string>& lines)
{
    if (Over) {
        return FileFault::None;
    }
    return FolderOfExists(path) ? WriteEntry(path, FileContent(lines)) : FileFault::NotFound;
}

FileFault WebPlatform::ReplaceTextLines(const std::string& path,
                                        const std::vector<std::string>& lines, OldFile old)
{
    const std::optional<std::string> there = Over ? std::nullopt : ReadEntry(path);
    if (!there || old == OldFile::Goes) {
        return WriteTextLines(path, lines);
    }
    if (old == OldFile::Stays) {
        return FileFault::NoPermission;
    }
    int number = 1;
    while (ReadEntry(KeptName(path, number))) {
        ++number;
    }
    const std::string kept = KeptName(path, number);
    FileFault fault = WriteEntry(kept, *there);
    if (fault == FileFault::None) {
        fault = WriteTextLines(path, lines);
    }
    if (fault != FileFault::None) {
        Tell("removeEntry", kept);
    }
    return fault;
}

void WebPlatform::sndPlaySoundA(const std::string& path)
{
    Tell("sound", FileName(path));
}

std::int32_t WebPlatform::waveOutGetNumDevs()
{
    return 1;
}

void WebPlatform::ShellExecuteA(const std::string& path)
{
    Tell("open", FileName(path));
}

std::uint64_t WebPlatform::ClockNs()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
}

}  // namespace malvone::web

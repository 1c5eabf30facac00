// WebPlatform.cpp: paths as names of entries.
#include "ui/web/WebPlatform.h"

#include <optional>

#include "platform/TextLines.h"
#include "ui/web/Page.h"

namespace malvone::web {
namespace {

// The bytes of an entry are characters up to 255 on the page.
std::optional<std::string> ReadEntry(const std::string& name)
{
    const auto entry = Ask<emscripten::val>("readEntry", name);
    if (entry.isUndefined()) {
        return std::nullopt;
    }
    const auto text = entry.as<std::u16string>();
    return std::string(text.begin(), text.end());
}

FileFault WriteEntry(const std::string& name, const std::string& bytes)
{
    std::u16string text;
    for (const char byte : bytes) {
        text += static_cast<unsigned char>(byte);
    }
    return static_cast<FileFault>(Ask<std::int32_t>("writeEntry", name, text));
}

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
    return Ask<bool>("storageAllowed") ? "C:\\WINDOWS" : "";
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
        Ask("removeEntry", path);
    }
}

ReadLines WebPlatform::ReadTextLines(const std::string& path, std::size_t count)
{
    const std::optional<std::string> content = ReadEntry(path);
    return content ? FirstLines(*content, count) : ReadLines{FileFault::NotFound, {}};
}

FileFault WebPlatform::WriteTextLines(const std::string& path,
                                      const std::vector<std::string>& lines)
{
    if (Over) {
        return FileFault::None;
    }
    if (FolderOfExists(path)) {
        return WriteEntry(path, FileContent(lines));
    }
    // The player has cleared the storage: what follows is kept again.
    CreateDirectoryA(path.substr(0, path.rfind('\\')));
    return FileFault::NotFound;
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
        Ask("removeEntry", kept);
    }
    return fault;
}

void WebPlatform::sndPlaySoundA(const std::string& path)
{
    Ask("sound", FileName(path));
}

void WebPlatform::ShellExecuteA(const std::string& path)
{
    Ask("open", FileName(path));
}

}  // namespace malvone::web

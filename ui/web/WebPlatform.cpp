// WebPlatform.cpp: files as entries of the browser's storage, with their paths as names.
#include "ui/web/WebPlatform.h"

#include <optional>

#include "platform/TextLines.h"

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

}  // namespace

// A folder is an entry whose name ends with a backslash.
bool WebPlatform::CreateDirectoryA(const std::string& path)
{
    return WriteEntry(path + "\\", "") == FileFault::None;
}

std::int32_t WebPlatform::OpenFileExist(const std::string& path)
{
    if (!Ask<bool>("folderExists", path)) {
        return kPathNotFound;
    }
    return ReadEntry(path + "\\") ? kAccessRefused : ReadEntry(path) ? kFileExists : kFileNotFound;
}

ReadLines WebPlatform::ReadTextLines(const std::string& path, std::size_t count)
{
    const std::optional<std::string> content = ReadEntry(path);
    return content ? FirstLines(*content, count) : ReadLines{FileFault::NotFound, {}};
}

FileFault WebPlatform::WriteTextLines(const std::string& path,
                                      const std::vector<std::string>& lines)
{
    if (Ask<bool>("folderExists", path)) {
        return WriteEntry(path, FileContent(lines));
    }
    // The player has cleared the storage: make it usable again for the next file.
    CreateDirectoryA(path.substr(0, path.rfind('\\')));
    return FileFault::NotFound;
}

// Two tabs never play at once, so nothing changes the entry in between.
FileFault WebPlatform::RenewTextLines(const std::string& path, std::size_t count,
                                      const Renewal& renewal)
{
    const std::optional<std::string> there = ReadEntry(path);
    const ReadLines now = count == 0 ? ReadLines() : ReadTextLines(path, count);
    const std::optional<NewFile> next = renewal(now);
    if (!next) {
        return FileFault::None;
    }
    if (!there || next->Old == OldFile::Goes) {
        return WriteTextLines(path, next->Lines);
    }
    if (next->Old == OldFile::Stays) {
        return FileFault::NoPermission;
    }
    int number = 1;
    while (ReadEntry(KeptName(path, number))) {
        ++number;
    }
    const std::string kept = KeptName(path, number);
    FileFault fault = WriteEntry(kept, *there);
    fault = fault == FileFault::None ? WriteTextLines(path, next->Lines) : fault;
    if (fault != FileFault::None) {
        DeleteFileA(kept);
    }
    return fault;
}

}  // namespace malvone::web

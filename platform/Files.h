// Files.h: the files and folders of a platform, the same for all bindings. Derived classes play
// sounds and open documents.
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "platform/SystemCalls.h"

namespace malvone {

// The folder that stands for the root of the drive by default: $XDG_DATA_HOME if it is absolute,
// else .local/share in the home folder, which is $HOME or, without it, that of the user's account.
// Nothing if the home folder does not exist.
std::optional<std::filesystem::path> DefaultDataRoot();

class FilePlatform : public Platform, protected SystemCalls
{
public:
    // Without a root there is no Windows folder, and no file can be kept.
    FilePlatform(std::optional<std::filesystem::path> root, std::filesystem::path programFolder);

    // Where a path of the game lies on this system; nothing for a path that leads nowhere.
    std::optional<std::filesystem::path> Translate(std::string_view path) const;

    std::string GetWindowsDirectoryA() override;
    // Makes a missing root on the way, with all folders above it.
    bool CreateDirectoryA(const std::string& path) override;
    // A missing root counts as an empty folder, as the root of a drive is always there.
    std::int32_t OpenFileExist(const std::string& path) override;
    bool HasFile(const std::string& path) override;
    // Follows links, which stay, and leaves alone whatever is no regular file.
    void DeleteFileA(const std::string& path) override;

    // Lines may have any length. Only a regular file is read, so that reading comes to an end and
    // never waits for a pipe; anything else is PathAccess.
    ReadLines ReadTextLines(const std::string& path, std::size_t count) override;
    // Does not wait for the disk.
    FileFault WriteTextLines(const std::string& path,
                             const std::vector<std::string>& lines) override;
    // The new file is complete on the disk before it gets the name of the old one, whose
    // permissions it takes over. Links are followed, and a read-only file stays as it is unless it
    // is kept. The new file is written under the old name with ".neu" appended, over what a killed
    // run may have left there. Two runs wait for each other, for two seconds at most. A kept file
    // lies beside the new one, with "-nicht-gelesen-" and a number in its name.
    FileFault RenewTextLines(const std::string& path, std::size_t count,
                             const Renewal& renewal) override;

private:
    class Handle;

    std::optional<std::filesystem::path> root_;
    std::filesystem::path programFolder_;

    // The calls that are made in several places; false leaves the reason in errno.
    bool Stat(const std::filesystem::path& path, struct stat& found);
    bool Stat(const Handle& file, struct stat& found);
    bool MakeFolder(const std::filesystem::path& folder);
    ssize_t Read(const Handle& file, std::span<char> block);
    bool Sync(int file);
    void Remove(const std::filesystem::path& path);

    mode_t KindOf(const std::filesystem::path& path);  // S_IFREG and its like; 0 for nothing
    bool IsFolder(const std::filesystem::path& path);
    void MakeFoldersAbove(const std::filesystem::path& path);
    // Where a file is to be written; the root is made if the file lies directly in it.
    std::optional<std::filesystem::path> PlaceToWrite(const std::string& path);
    FileFault FollowLinks(std::filesystem::path& path);
    bool Locked(int folder);
    Handle OpenFile(const std::filesystem::path& path, int flags, mode_t mode = 0);
    FileFault Opened(const Handle& file);
    FileFault Replace(const std::filesystem::path& target, const NewFile& next);
    FileFault LookAtOld(const std::filesystem::path& target, OldFile old,
                        std::optional<mode_t>& mode);
    FileFault WriteNew(const std::filesystem::path& name, std::string_view content,
                       std::optional<mode_t> mode);
    bool WriteAll(int file, std::string_view content);
    FileFault KeepBeside(const std::filesystem::path& file, std::filesystem::path& kept);
    int Copy(const std::filesystem::path& from, const std::filesystem::path& to);
};

}  // namespace malvone

// SystemCalls.h: the system's calls for files and folders.
#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>
#include <filesystem>
#include <span>
#include <string_view>

namespace malvone {

// A call that a signal has interrupted is made again. Each returns what the system does: a negative
// number if it has failed, with the reason in errno.
class SystemCalls
{
public:
    using Path = std::filesystem::path;

    SystemCalls(const SystemCalls&) = delete;
    SystemCalls& operator=(const SystemCalls&) = delete;

    int Stat(const Path& path, struct stat& found);
    int Access(const Path& path, int mode);
    ssize_t ReadLink(const Path& path, std::span<char> target);
    int MakeFolder(const Path& path, mode_t mode);

    int Open(const Path& path, int flags, mode_t mode);
    int FileStat(int file, struct stat& found);
    ssize_t Read(int file, std::span<char> bytes);
    ssize_t Write(int file, std::string_view bytes);
    int ChangeMode(int file, mode_t mode);
    int Lock(int file);  // for this program alone; at once, or not at all
    int Sync(int file);
    int Close(int file);  // closes it even where it fails

    int Link(const Path& file, const Path& name);
    int Rename(const Path& from, const Path& to);
    int Remove(const Path& path);

protected:
    SystemCalls() = default;
    ~SystemCalls() = default;

    // For tests: the error number with which a call fails instead of being made, 0 for none, and
    // how much of what is to be written one call writes.
    virtual int Refusal(std::string_view /*call*/) { return 0; }
    virtual std::size_t Portion(std::size_t bytes) { return bytes; }

private:
    template<class Call>
    auto Make(std::string_view name, Call call);
};

}  // namespace malvone

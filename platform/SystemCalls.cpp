// SystemCalls.cpp: makes the system's calls, again and again where signals interrupt them.
#include "platform/SystemCalls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace malvone {
namespace {

constexpr int kAttempts = 100;  // of a call that signals keep interrupting

}  // namespace

template<class Call>
auto SystemCalls::Make(std::string_view name, Call call)
{
    using Result = decltype(call());
    Result result = -1;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        const int refusal = Refusal(name);
        result = refusal == 0 ? call() : Result{-1};
        errno = refusal == 0 ? errno : refusal;
        if (result >= 0 || errno != EINTR) {
            break;
        }
    }
    return result;
}

int SystemCalls::Stat(const Path& path, struct stat& found)
{
    return Make("stat", [&] { return ::stat(path.c_str(), &found); });
}

int SystemCalls::Access(const Path& path, int mode)
{
    return Make("access", [&] { return ::access(path.c_str(), mode); });
}

ssize_t SystemCalls::ReadLink(const Path& path, std::span<char> target)
{
    return Make("readlink", [&] { return ::readlink(path.c_str(), target.data(), target.size()); });
}

int SystemCalls::MakeFolder(const Path& path, mode_t mode)
{
    return Make("mkdir", [&] { return ::mkdir(path.c_str(), mode); });
}

int SystemCalls::Open(const Path& path, int flags, mode_t mode)
{
    return Make("open", [&] { return ::open(path.c_str(), flags, mode); });
}

int SystemCalls::FileStat(int file, struct stat& found)
{
    return Make("fstat", [&] { return ::fstat(file, &found); });
}

ssize_t SystemCalls::Read(int file, std::span<char> bytes)
{
    return Make("read", [&] { return ::read(file, bytes.data(), bytes.size()); });
}

ssize_t SystemCalls::Write(int file, std::string_view bytes)
{
    return Make("write", [&] { return ::write(file, bytes.data(), Portion(bytes.size())); });
}

int SystemCalls::ChangeMode(int file, mode_t mode)
{
    return Make("fchmod", [&] { return ::fchmod(file, mode); });
}

int SystemCalls::Lock(int file)
{
    return Make("flock", [&] { return ::flock(file, LOCK_EX | LOCK_NB); });
}

int SystemCalls::Sync(int file)
{
    return Make("sync", [&] { return ::fsync(file); });
}

// What a signal has interrupted is closed all the same.
int SystemCalls::Close(int file)
{
    const int result = ::close(file);
    const int refusal = Refusal("close");
    errno = refusal == 0 ? errno : refusal;
    return (result == 0 && refusal == 0) || errno == EINTR ? 0 : -1;
}

int SystemCalls::Link(const Path& file, const Path& name)
{
    return Make("link", [&] { return ::link(file.c_str(), name.c_str()); });
}

int SystemCalls::Rename(const Path& from, const Path& to)
{
    return Make("rename", [&] { return std::rename(from.c_str(), to.c_str()); });
}

int SystemCalls::Remove(const Path& path)
{
    return Make("remove", [&] { return std::remove(path.c_str()); });
}

}  // namespace malvone

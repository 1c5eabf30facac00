// SystemCalls.h: how the system is called for files and folders.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <string_view>

namespace malvone {

class SystemCalls
{
public:
    SystemCalls(const SystemCalls&) = delete;
    SystemCalls& operator=(const SystemCalls&) = delete;

protected:
    SystemCalls() = default;
    ~SystemCalls() = default;

    // Makes a call of that name, and makes it again if a signal has interrupted it. Returns what
    // the system does: a negative number if the call has failed, with the reason in errno.
    template<class Function>
    auto Call(std::string_view name, Function function)
    {
        constexpr int kAttempts = 100;  // if signals keep interrupting it
        decltype(function()) result = -1;
        for (int attempt = 0; attempt < kAttempts; ++attempt) {
            const int refusal = Refusal(name);
            result = refusal == 0 ? function() : -1;
            errno = refusal == 0 ? errno : refusal;
            if (result >= 0 || errno != EINTR) {
                break;
            }
        }
        return result;
    }

    // Closes a file, even if that fails: what a signal has interrupted is closed all the same.
    int Close(int file)
    {
        const int result = ::close(file);
        const int refusal = Refusal("close");
        errno = refusal == 0 ? errno : refusal;
        return (result == 0 && refusal == 0) || errno == EINTR ? 0 : -1;
    }

    // For tests: the error number with which a call fails instead of being made, 0 for none, and
    // how much of what is to be written one call writes.
    virtual int Refusal(std::string_view /*call*/) { return 0; }
    virtual std::size_t Portion(std::size_t bytes) { return bytes; }
};

}  // namespace malvone

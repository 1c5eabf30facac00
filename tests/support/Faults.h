// Faults.h: real files, whose calls to the system fail where a test wants it.
#pragma once

#include <cerrno>
#include <functional>
#include <string_view>

#include "platform/Files.h"

namespace malvone::test {

// The error number of a call, 0 where it succeeds. The names: open, write, sync, close, rename.
using Fault = std::function<int(std::string_view call)>;

inline Fault Fails(std::string_view name, int error)
{
    return [=](std::string_view call) { return call == name ? error : 0; };
}

// Writes arrive in pieces.
template<class Base>
class Faulty : public Base
{
public:
    using Base::Base;

    test::Fault Fault;

protected:
    int Open(const char* path, int flags, mode_t mode) override
    {
        return Fails("open") ? -1 : Base::Open(path, flags, mode);
    }
    ssize_t Write(int file, const char* bytes, std::size_t count) override
    {
        return Fails("write") ? -1 : Base::Write(file, bytes, (count + 1) / 2);
    }
    int Sync(int file) override { return Fails("sync") ? -1 : Base::Sync(file); }
    int Close(int file) override
    {
        const int result = Base::Close(file);
        return Fails("close") ? -1 : result;
    }
    int Rename(const char* from, const char* to) override
    {
        return Fails("rename") ? -1 : Base::Rename(from, to);
    }

private:
    bool Fails(std::string_view call)
    {
        const int error = Fault ? Fault(call) : 0;
        errno = error == 0 ? errno : error;
        return error != 0;
    }
};

}  // namespace malvone::test

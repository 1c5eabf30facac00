// Faults.h: real files, whose calls to the system fail where a test wants it.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace malvone::test {

// The error number with which a call fails, 0 where it is made.
using Fault = std::function<int(std::string_view call)>;

inline Fault Fails(std::string_view name, int error)
{
    return [=](std::string_view call) { return call == name ? error : 0; };
}

// One call of the system, counted from 1, fails: alone, or with all of its kind behind it.
struct NthCall
{
    int At;
    int Error;
    bool Forever = false;
    int Calls = 0;
    std::string Hit = "";

    int operator()(std::string_view call)
    {
        const bool now = ++Calls == At;
        if (now && Error == 0) {
            throw *this;  // the program is killed here
        }
        Hit = now ? call : Hit;
        return now || (Forever && call == Hit) ? Error : 0;
    }
};

// Writes arrive in pieces.
template<class Base>
class Faulty : public Base
{
public:
    using Base::Base;

    test::Fault Fault;

protected:
    int Refusal(std::string_view call) override { return Fault ? Fault(call) : 0; }
    std::size_t Portion(std::size_t bytes) override { return (bytes + 1) / 2; }
};

}  // namespace malvone::test

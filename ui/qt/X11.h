// X11.h: the connection to an X server that Qt holds.
#pragma once

#ifdef MALVONE_XCB
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace malvone::qt {

// Null on another platform.
xcb_connection_t* X11Connection();

struct Freed
{
    void operator()(void* memory) const { std::free(memory); }
};
// A reply of the server; null where there was an error instead.
template<typename Reply>
using Answer = std::unique_ptr<Reply, Freed>;

}  // namespace malvone::qt
#endif

// X11.h: the connection to an X server that Qt holds.
#pragma once

#ifdef MALVONE_XCB
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

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

// A name's atom: to be asked for and, after other questions, taken.
xcb_intern_atom_cookie_t AskForAtom(xcb_connection_t* connection, std::string_view name);
xcb_atom_t TakeAtom(xcb_connection_t* connection, xcb_intern_atom_cookie_t cookie);

}  // namespace malvone::qt
#endif

// X11.h: what all that speaks to the X server needs. Only for builds with XCB.
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace malvone::qt::x11 {

struct Freed
{
    void operator()(void* memory) const { std::free(memory); }
};

// A reply of the server; null on an error.
template<typename Reply>
using Answer = std::unique_ptr<Reply, Freed>;

inline xcb_atom_t Atom(xcb_connection_t* connection, std::string_view name)
{
    const Answer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

inline xcb_window_t Root(xcb_connection_t* connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

}  // namespace malvone::qt::x11

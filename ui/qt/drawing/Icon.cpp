// Icon.cpp: hands icons to the window manager.
#include "ui/qt/drawing/Icon.h"

#include <QWindow>

#include "ui/qt/drawing/ReadyPictures.h"
#include "ui/qt/platform/X11.h"

namespace malvone::qt {

#ifdef MALVONE_XCB

Icon::Icon(const Picture& picture)
{
    if (X11Connection() != nullptr) {
        const std::string_view file = picture.File();
        for (const ReadyIcon& ready : ReadyIcons()) {
            if (ready.File == file) {
                sizes_ = qUncompress(reinterpret_cast<const uchar*>(ready.Packed.data()),
                                     static_cast<qsizetype>(ready.Packed.size()));
            }
        }
    }
}

void Icon::Give(QWindow& window) const
{
    xcb_connection_t* const connection = X11Connection();
    if (connection == nullptr) {
        return;
    }
    const xcb_atom_t name = TakeAtom(connection, AskForAtom(connection, "_NET_WM_ICON"));
    // A server takes no more at once than it says; any server of this century takes all of it.
    const auto words = static_cast<std::uint32_t>(sizes_.size() / 4);
    if (name != XCB_ATOM_NONE && words + 16 < xcb_get_maximum_request_length(connection)) {
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE,
                            static_cast<xcb_window_t>(window.winId()), name, XCB_ATOM_CARDINAL, 32,
                            words, sizes_.constData());
        xcb_flush(connection);
    }
}

#else

Icon::Icon(const Picture&) {}

void Icon::Give(QWindow&) const {}

#endif

}  // namespace malvone::qt
